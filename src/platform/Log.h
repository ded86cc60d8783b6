#pragma once

#include <QString>
#include <functional>
#include <utility>
#include <vector>

// A place in the code. The library's own type for it does not compile with every compiler that we
// check the code with.
struct CodeLocation {
    const char* file;
    const char* function;
    unsigned line;

    // The place of the call.
    static constexpr CodeLocation current(const char* file = __builtin_FILE(),
                                          const char* function = __builtin_FUNCTION(),
                                          unsigned line = __builtin_LINE()) {
        return {file, function, line};
    }
};

// A named logger. Every record carries the file, line and function of the call.
class Log {
public:
    enum class Level { debug, info, warn, error };

    struct Record {
        Level level;
        QString logger;
        QString text;
        CodeLocation where;
    };

    explicit Log(const char* name);

    // Use before building an expensive text.
    bool isDebugEnabled() const;

    void debug(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void info(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void warn(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void error(const QString& text, CodeLocation where = CodeLocation::current()) const;

    // For the few messages that belong in the operating system's log rather than in ours.
    static void system(const QString& text);

    // Configures the loggers from a properties file with the given keys replaced or added. Returns
    // false when the file can't be read.
    static bool configure(const QString& propertiesFile,
                          const std::vector<std::pair<QString, QString>>& overrides = {});

    // What the headless program does: records below the level are dropped, the others go to
    // standard error. Nothing at all is written before this or configure() was called.
    static void configureForTerminal(Level lowest);

    // For a process that must have no other threads: nothing more is logged, and the threads that
    // the logging library has started end.
    static void end();

    // Tests watch the records (system messages arrive under the logger name "system"). An empty
    // function ends it.
    static void setWatcher(std::function<void(const Record&)> watcher);

private:
    void write(Level level, const QString& text, const CodeLocation& where) const;

    const char* iName;
};
