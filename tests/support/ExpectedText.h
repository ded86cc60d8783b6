#pragma once

#include <QByteArrayList>
#include <QFile>
#include <algorithm>
#include <gtest/gtest.h>

// Expects these lines to be those of a file beside the tests. With FOLVERO_WRITE_EXPECTED=1 in the
// environment, writes them into it instead.
inline void expectLinesOf(const QString& path, const QByteArrayList& found) {
    QFile file(path);
    const bool writes = qEnvironmentVariableIsSet("FOLVERO_WRITE_EXPECTED");
    ASSERT_TRUE(file.open(writes ? QIODevice::WriteOnly : QIODevice::ReadOnly));
    if (writes) {
        file.write(found.join('\n'));
        return;
    }
    const QByteArrayList lines = file.readAll().split('\n');
    for (qsizetype i = 0; i < std::max(found.size(), lines.size()); ++i)
        ASSERT_EQ(found.value(i).toStdString(), lines.value(i).toStdString()) << "line " << i + 1;
}
