#pragma once

#include <QByteArray>
#include <QMap>
#include <functional>
#include <optional>

// A request that something else than a file may answer.
struct ServerRequest {
    QByteArray path;                           // decoded, without the query
    QByteArray target;                         // as sent, with the query
    QByteArray host;                           // with the port
    QByteArray accept;                         // media types that the client wants
    QMap<QByteArray, QByteArray> parameters{}; // of the query, decoded; the first of each name
};

struct ServerAnswer {
    int status = 200;
    QByteArray contentType;
    QByteArray content;
    QByteArray contentPolicy; // content security policy; empty for none
};

// None when a file is to be looked for. Called by several threads at once.
using AnswerRequest = std::function<std::optional<ServerAnswer>(const ServerRequest&)>;
