#include "support/ExpectedText.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Runs the commands of each transcript in an empty folder, and expects what they print to be what
// stands below them.
namespace {

const QDir transcripts(FOLVERO_TRANSCRIPTS_DIR);

// What a command prints, with its exit code when it fails.
QByteArray printed(const QByteArray& command, const QString& folder) {
    auto environment = QProcessEnvironment::systemEnvironment();
    const QString samples = QDir::cleanPath(Program::sample({}));
    environment.insert("SAMPLES", samples);
    environment.insert("LC_ALL", "C.UTF-8");
    // Overwrites freed memory, so that whoever still uses it fails each time.
    environment.insert("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0:glibc.malloc.perturb=85");
    environment.insert("PATH", Program::path({}) + ':' + environment.value("PATH"));
    const auto result = Program::runOther(
        "/bin/sh", {"-c", "cd \"$0\"; exec 2>&1; " + command, folder}, environment);
    QByteArray text = result.output;
    text.replace(folder.toUtf8(), "$PWD").replace(samples.toUtf8(), "$SAMPLES");
    if (!text.isEmpty() && !text.endsWith('\n'))
        text += '\n';
    return text + (result.exitCode ? "[" + QByteArray::number(result.exitCode) + "]\n" : "");
}

class Transcript : public testing::TestWithParam<std::string> {};

TEST_P(Transcript, IsWhatTheCommandsPrint) {
    const QString file = transcripts.filePath(QString::fromStdString(GetParam() + ".txt"));
    const QTemporaryDir folder;
    QByteArrayList found;
    const QByteArrayList lines = TestFiles::read(file).split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines[i].startsWith("$ "))
            continue;
        QByteArrayList command{lines[i].mid(2)};
        for (; command.last().endsWith('\\'); command << lines.value(++i))
            found << lines[i];
        found << lines.value(i) << printed(command.join('\n'), folder.path()).split('\n');
    }
    expectLinesOf(file, found);
}

std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const QString& file : transcripts.entryList({"*.txt"}))
        found.push_back(file.chopped(4).toStdString());
    return found;
}
INSTANTIATE_TEST_SUITE_P(Of, Transcript, testing::ValuesIn(names()),
                         [](const auto& name) { return name.param; });

} // namespace
