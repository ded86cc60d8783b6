#pragma once

#include <QByteArray>
#include <chrono>
#include <functional>

// Answers a question of the program on a line of its own: "ok" and the result in base 64, or "fail"
// with the kind and reason of what was thrown. Ends the process when it takes longer than that, and
// a little: the program no longer waits for it then.
void answerWith(std::chrono::seconds limit, const std::function<QByteArray()>& work);
