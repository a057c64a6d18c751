#include "cli/TemplateCommand.h"

#include "app/AppController.h"
#include "app/TemplateCommands.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <QCoreApplication>
#include <array>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(TemplateCommand)
};
} // namespace

namespace tabo::cli {

namespace {

const QStringList kGroups{QStringLiteral("client"), QStringLiteral("title"), QStringLiteral("items"),
                          QStringLiteral("shipping"), QStringLiteral("discount")};
constexpr std::array<Preferences::Key, 5> kGroupKeys{
    Preferences::templateIncludeClient, Preferences::templateIncludeTitle, Preferences::templateIncludeItems,
    Preferences::templateIncludeShipping, Preferences::templateIncludeDiscount};

} // namespace

TemplateCommand::TemplateCommand(Session &session)
    : Command(session, QStringLiteral("template"),
        QStringLiteral("save ID NAME [--include client,title,items,shipping,discount] [--notes TEXT] | "
                       "apply ID NAME | list [--json] | delete NAME"),
        Tr::tr("Save a document as a named template (--include picks the groups for this save; "
               "otherwise the preferences do), fill a document from one, list or delete them."))
{
}

int TemplateCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption include(QStringLiteral("include"), Tr::tr("Groups to take over."), QStringLiteral("LIST"));
    const QCommandLineOption notes(
        QStringLiteral("notes"), Tr::tr("The template's description."), QStringLiteral("TEXT"));
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOptions({include, notes, json});
    int code = kExitOk;
    if (!parse(parser, args, 1, 3, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &action = pos.at(0);
    const bool isSave = action == QLatin1String("save") && pos.size() == 3;
    if ((parser.isSet(include) || parser.isSet(notes)) && !isSave)
        return usageError(Tr::tr("--include and --notes belong to “template save”."));
    if (parser.isSet(json) && action != QLatin1String("list"))
        return usageError(Tr::tr("--json belongs to “template list”."));
    if (isSave) {
        const QString includeList = parser.value(include);
        const QString notesText = parser.value(notes);
        return save(pos.at(1), pos.at(2), parser.isSet(include) ? &includeList : nullptr,
                    parser.isSet(notes) ? &notesText : nullptr);
    }
    if (action == QLatin1String("apply") && pos.size() == 3)
        return apply(pos.at(1), pos.at(2));
    if (action == QLatin1String("list") && pos.size() == 1)
        return list(parser.isSet(json));
    if (action == QLatin1String("delete") && pos.size() == 2)
        return remove(pos.at(1));
    return usageError();
}

int TemplateCommand::save(const QString &id, const QString &name, const QString *include, const QString *notes)
{
    if (name.trimmed().isEmpty())
        return usageError(Tr::tr("A template needs a name."));
    std::array<bool, 5> chosen{};
    if (include) {
        for (const QString &word : include->split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const qsizetype g = kGroups.indexOf(word.trimmed());
            if (g < 0)
                return usageError(QStringLiteral("Unknown group “%1”; groups: %2.")
                                      .arg(word, kGroups.join(QStringLiteral(", "))));
            chosen[g] = true;
        }
    }
    Record *doc = m_session.select(id);
    if (!doc)
        return kExitFailure;
    TemplateCommands &templates = m_session.controller().templates();
    // Saved by name and applied by name: a second one would never be reached.
    if (templates.findTemplate(name))
        return failure(Tr::tr("A template named “%1” exists already.").arg(name));

    // The groups are the popover's settings for this one save: put back what
    // was stored before, including "nothing stored".
    Preferences &prefs = m_session.prefs();
    std::array<QVariant, 5> before;
    if (include) {
        for (std::size_t g = 0; g < kGroupKeys.size(); ++g) {
            if (prefs.contains(kGroupKeys[g]))
                before[g] = prefs.boolean(kGroupKeys[g]);
            prefs.setBool(kGroupKeys[g], chosen[g]);
        }
    }
    const Record *made = templates.createNewTemplate(name, notes ? *notes : doc->text(Invoice::notes));
    if (include) {
        for (std::size_t g = 0; g < kGroupKeys.size(); ++g) {
            if (before[g].isValid())
                prefs.setBool(kGroupKeys[g], before[g].toBool());
            else
                prefs.remove(kGroupKeys[g]);
        }
    }
    if (!made || m_session.controller().save())
        return kExitFailure;
    return kExitOk;
}

int TemplateCommand::apply(const QString &id, const QString &name)
{
    if (!m_session.select(id))
        return kExitFailure;
    TemplateCommands &templates = m_session.controller().templates();
    Record *t = templates.findTemplate(name);
    if (!t)
        return failure(Tr::tr("No template named “%1”.").arg(name));
    return templates.selectTemplate(t) ? kExitOk : kExitFailure;
}

int TemplateCommand::list(bool json)
{
    if (!m_session.store())
        return kExitFailure;
    QStringList lines;
    for (const Record *t : m_session.controller().templates().templates()) {
        if (json)
            lines << JsonWriter::document(*t);
        else
            lines << QStringList{t->text(Template::uniqueID),
                                 QString::number(t->toMany(Template::items).size()) + QStringLiteral(" line(s)"),
                                 t->text(Template::notes).simplified()}
                         .join(QLatin1Char('\t'));
    }
    if (json)
        printOut(QLatin1Char('[') + lines.join(QStringLiteral(",\n")) + QLatin1Char(']'));
    else if (!lines.isEmpty())
        printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

int TemplateCommand::remove(const QString &name)
{
    if (!m_session.store())
        return kExitFailure;
    TemplateCommands &templates = m_session.controller().templates();
    Record *t = templates.findTemplate(name);
    if (!t)
        return failure(Tr::tr("No template named “%1”.").arg(name));
    templates.deleteTemplate(t);
    return m_session.controller().save() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
