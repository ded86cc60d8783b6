#include "worker/Answer.h"

#include "base/PlatformException.h"

#include <iostream>
#include <new>
#include <string>
#include <unistd.h>

void answerWith(std::chrono::seconds limit, const std::function<QByteArray()>& work) {
    // The other side times out before that.
    constexpr unsigned patience = 10;
    std::string line;
    ::alarm(unsigned(limit.count()) + patience);
    try {
        line = "ok " + work().toBase64().toStdString();
    } catch (const PlatformException& failure) {
        QString reason = failure.reason();
        reason.replace(u'\n', u' ');
        line = "fail " + failure.name().toStdString() + ' ' + reason.toStdString();
    } catch (const std::bad_alloc&) {
        line = "fail PDFPageUnreadable it takes more memory than a page may have";
    } catch (const std::exception& failure) {
        line = std::string("fail PDFPageUnreadable ") + failure.what();
    }
    ::alarm(0);
    std::cout << line << std::endl;
}
