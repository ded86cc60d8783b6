#include "base/Log.h"

#include <atomic>
#include <log4cplus/configurator.h>
#include <log4cplus/consoleappender.h>
#include <log4cplus/helpers/property.h>
#include <log4cplus/initializer.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>
#include <mutex>
#include <syslog.h>

namespace {

struct Watcher {
    std::mutex mutex;
    std::function<void(const Log::Record&)> function;
};

Watcher& watcher() {
    static Watcher instance;
    return instance;
}

void notifyWatcher(Log::Level level, const char* logger, const QString& text,
                   const CodeLocation& where) {
    const std::lock_guard lock(watcher().mutex);
    if (watcher().function)
        watcher().function({level, QString::fromLatin1(logger), text, where});
}

std::atomic<bool> hasEnded{false};

bool isWatched() {
    const std::lock_guard lock(watcher().mutex);
    return static_cast<bool>(watcher().function);
}

log4cplus::LogLevel libraryLevel(Log::Level level) {
    constexpr log4cplus::LogLevel levels[]{log4cplus::DEBUG_LOG_LEVEL, log4cplus::INFO_LOG_LEVEL,
                                           log4cplus::WARN_LOG_LEVEL, log4cplus::ERROR_LOG_LEVEL};
    return levels[std::size_t(level)];
}

// log4cplus complains on standard error about a root logger without an appender, so it starts with
// one that discards everything.
void startLibrary() {
    static std::once_flag once;
    std::call_once(once, [] {
        log4cplus::initialize();
        auto root = log4cplus::Logger::getRoot();
        root.addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
        root.setLogLevel(log4cplus::OFF_LOG_LEVEL);
    });
}

log4cplus::Logger libraryLogger(const char* name) {
    startLibrary();
    return log4cplus::Logger::getInstance(name);
}

} // namespace

bool Log::isDebugEnabled() const {
    return isWatched() ||
           (!hasEnded && libraryLogger(iName).isEnabledFor(log4cplus::DEBUG_LOG_LEVEL));
}

void Log::debug(const QString& text, CodeLocation where) const {
    write(Level::debug, text, where);
}

void Log::info(const QString& text, CodeLocation where) const {
    write(Level::info, text, where);
}

void Log::warn(const QString& text, CodeLocation where) const {
    write(Level::warn, text, where);
}

void Log::error(const QString& text, CodeLocation where) const {
    write(Level::error, text, where);
}

void Log::write(Level level, const QString& text, const CodeLocation& where) const {
    notifyWatcher(level, iName, text, where);
    if (hasEnded)
        return;
    auto logger = libraryLogger(iName);
    if (!logger.isEnabledFor(libraryLevel(level)))
        return;
    logger.forcedLog(libraryLevel(level), text.toStdString(), where.file,
                     static_cast<int>(where.line), where.function);
}

void Log::system(const QString& text) {
    notifyWatcher(Level::warn, "system", text, CodeLocation::current());
    ::syslog(LOG_USER | LOG_NOTICE, "%s", text.toUtf8().constData());
}

bool Log::configure(const QString& propertiesFile,
                    const std::vector<std::pair<QString, QString>>& overrides) {
    startLibrary();
    log4cplus::helpers::Properties properties(propertiesFile.toStdString());
    if (properties.size() == 0)
        return false;
    for (const auto& [key, value] : overrides)
        properties.setProperty(key.toStdString(), value.toStdString());
    log4cplus::PropertyConfigurator(properties).configure();
    return true;
}

void Log::configureForTerminal(Level lowest) {
    startLibrary();
    log4cplus::SharedAppenderPtr appender(new log4cplus::ConsoleAppender(true, true));
    appender->setLayout(std::make_unique<log4cplus::PatternLayout>("%p %c: %m%n"));
    auto root = log4cplus::Logger::getRoot();
    root.removeAllAppenders();
    root.addAppender(appender);
    root.setLogLevel(libraryLevel(lowest));
}

void Log::end() {
    hasEnded = true;
    log4cplus::deinitialize();
}

void Log::setWatcher(std::function<void(const Record&)> function) {
    const std::lock_guard lock(watcher().mutex);
    watcher().function = std::move(function);
}
