#include "cli/CurrentBooks.h"

#include "cli/PublishArguments.h"
#include "cli/PublishStamp.h"
#include "cli/TemplateOptions.h"
#include "cli/WebBookOptions.h"
#include "console/CommandError.h"
#include "output/BookLayout.h"
#include "system/Files.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

PublishOptions parsed(const QStringList& arguments, const PasswordOptions& password) {
    CLI::App command;
    PublishOptions options;
    options.password = password;
    PublishArguments::addTo(command, options);
    std::vector<std::string> words;
    for (const QString& argument : arguments)
        words.push_back(argument.toStdString());
    std::reverse(words.begin(), words.end());
    try {
        command.parse(words);
    } catch (const CLI::ParseError& error) {
        throw CommandError(QString::fromUtf8(error.what()), ExitCode::usage);
    }
    return options;
}

} // namespace

CurrentBooks::CurrentBooks(PasswordOptions password)
    : iPassword(std::move(password)), iResources(PublishStamp::digestOfResources()) {}

std::shared_ptr<FlashTemplate> CurrentBooks::templateFor(const PublishOptions& options) {
    const QStringList key =
        QStringList{options.templateName, options.styleName, options.settingsFile} +
        options.assignments;
    auto& tmpl = iTemplates[key.join(u'\n')];
    if (!tmpl)
        tmpl = TemplateOptions::prepared(options, false);
    return tmpl;
}

void CurrentBooks::check(const QStringList& options) {
    const QString any = QStringLiteral("-");
    templateFor(parsed(QStringList(options) << QStringLiteral("--") << any << any, iPassword));
}

CurrentBooks::State CurrentBooks::of(const QStringList& arguments) {
    const PublishOptions options = parsed(arguments, iPassword);
    WebBookOptions::check(options);
    const QString page = Files::join(options.outputFolder, BookLayout::defaultPage);
    const PublishStamp stamp(options, *templateFor(options), page, iResources);
    return {stamp.digest(), stamp.isUpToDate()};
}
