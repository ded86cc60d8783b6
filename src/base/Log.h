#pragma once

#include <QString>
#include <functional>
#include <utility>
#include <vector>

// A source location. std::source_location does not compile with all compilers that we check the
// code with.
struct CodeLocation {
    const char* file;
    const char* function;
    unsigned line;

    // The location of the call.
    static constexpr CodeLocation current(const char* file = __builtin_FILE(),
                                          const char* function = __builtin_FUNCTION(),
                                          unsigned line = __builtin_LINE()) {
        return {file, function, line};
    }
};

// A named logger. Every record carries the file, line and function of the call. Costs nothing to
// make: declare one at the top of a source file.
class Log {
public:
    enum class Level { debug, info, warn, error };

    struct Record {
        Level level;
        QString logger;
        QString text;
        CodeLocation where;
    };

    explicit constexpr Log(const char* name) : iName(name) {}

    // Check this before building an expensive text.
    bool isDebugEnabled() const;

    void debug(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void info(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void warn(const QString& text, CodeLocation where = CodeLocation::current()) const;
    void error(const QString& text, CodeLocation where = CodeLocation::current()) const;

    // For the few messages that belong in the operating system's log rather than in ours.
    static void system(const QString& text);

    // Configures the loggers from a properties file, with the given keys replaced or added. False
    // when the file can't be read.
    static bool configure(const QString& propertiesFile,
                          const std::vector<std::pair<QString, QString>>& overrides = {});

    // For terminal programs: records below the level are dropped, the others go to standard error.
    // Nothing is written until this or configure() has been called.
    static void configureForTerminal(Level lowest);

    // Stops logging and joins log4cplus's threads, for a process that must be single-threaded.
    static void end();

    // For tests: observes all records (system messages under the logger name "system"). An empty
    // function removes the watcher.
    static void setWatcher(std::function<void(const Record&)> watcher);

private:
    void write(Level level, const QString& text, const CodeLocation& where) const;

    const char* iName;
};
