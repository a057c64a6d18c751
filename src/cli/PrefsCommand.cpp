#include "cli/PrefsCommand.h"

#include "app/AppController.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"
#include "domain/PrefRules.h"
#include "prefs/Preferences.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PrefsCommand)
};
} // namespace

namespace tabo::cli {

PrefsCommand::PrefsCommand(Session &session)
    : Command(session, QStringLiteral("prefs"),
        QStringLiteral("list [--json] | get KEY | set KEY VALUE | install-language N | restore"),
        Tr::tr("List every preference with its type and value (stored, or the default); read or "
               "write one; install the language defaults (0 English, 1 German, 2 French, 3 Spanish); "
               "put the last good settings (Tabo.conf.bak) back in place of a damaged file."))
{
}

int PrefsCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOption(json);
    int code = kExitOk;
    // Values may start with a dash ("-5"), so options come first, except
    // after "list", which takes no value.
    const bool listing = !args.isEmpty() && args.constFirst() == QLatin1String("list");
    if (!parse(parser, args, 1, 3, &code, !listing))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &action = pos.at(0);
    if (parser.isSet(json) && action != QLatin1String("list"))
        return usageError(Tr::tr("--json belongs to “prefs list”."));
    if (action == QLatin1String("list") && pos.size() == 1)
        return list(parser.isSet(json));
    if (action == QLatin1String("get") && pos.size() == 2)
        return get(pos.at(1));
    if (action == QLatin1String("set") && pos.size() == 3)
        return set(pos.at(1), pos.at(2));
    if (action == QLatin1String("install-language") && pos.size() == 2)
        return installLanguage(pos.at(1));
    if (action == QLatin1String("restore") && pos.size() == 1) {
        if (const Error e = m_session.prefs().restoreBackup())
            return failure(e.message());
        printOut(Tr::tr("Restored the last good settings from “%1”.").arg(m_session.prefs().backupFilePath()));
        return kExitOk;
    }
    return usageError();
}

int PrefsCommand::list(bool json)
{
    // The controller registers the defaults that stand in for unset keys.
    m_session.controller();
    const Preferences &prefs = m_session.prefs();
    QStringList lines;
    for (int i = 0; i < Preferences::KeyCount; ++i) {
        const auto key = Preferences::Key(i);
        const Preferences::KeyInfo &info = Preferences::info(key);
        const QString type = Preferences::typeName(info.type);
        const QString text = prefs.toText(key);
        if (!json) {
            lines << info.name + QLatin1Char('\t') + type + QLatin1Char('\t') + QString(text).replace(QLatin1Char('\n'), QLatin1String("\\n"));
            continue;
        }
        QString value;
        switch (info.type) {
        case Preferences::Type::Bool: value = prefs.boolean(key) ? QStringLiteral("true") : QStringLiteral("false"); break;
        case Preferences::Type::Int: value = QString::number(prefs.integer(key)); break;
        case Preferences::Type::Real: value = JsonWriter::number(prefs.real(key)); break;
        default: value = JsonWriter::string(text); break;
        }
        lines << QStringLiteral("{\"key\": %1, \"type\": %2, \"value\": %3, \"stored\": %4}")
                     .arg(JsonWriter::string(info.name), JsonWriter::string(type), value,
                          prefs.contains(key) ? QStringLiteral("true") : QStringLiteral("false"));
    }
    printOut(json ? QLatin1Char('[') + lines.join(QStringLiteral(",\n")) + QLatin1Char(']') : lines.join(QLatin1Char('\n')));
    return kExitOk;
}

int PrefsCommand::get(const QString &key)
{
    const int idx = Preferences::keyIndex(key);
    if (idx < 0)
        return failure(Tr::tr("Unknown preference key “%1”.").arg(key));
    printOut(m_session.prefs().toText(Preferences::Key(idx)));
    return kExitOk;
}

int PrefsCommand::set(const QString &key, const QString &value)
{
    using P = Preferences;
    Preferences &prefs = m_session.prefs();
    const int idx = Preferences::keyIndex(key);
    if (idx == P::useCustomPath || idx == P::customDatabasePath)
        return moveStore(P::Key(idx), value);
    const bool counter = idx == P::invCount || idx == P::quotCount;
    if (const Error e = prefs.setFromText(key, value, PrefRules::refusal))
        return failure(e.text);
    // The counters number documents inside the store's transactions; the
    // settings only mirror them.
    if (counter) {
        if (!m_session.store())
            return kExitFailure;
        if (const Error e = m_session.controller().setNumberCounter(P::Key(idx), prefs.integer(P::Key(idx))))
            return failure(e.message());
    }
    if (const Error e = prefs.syncChecked())
        return failure(e.message());
    return kExitOk;
}

int PrefsCommand::moveStore(Preferences::Key key, const QString &value)
{
    using P = Preferences;
    Preferences &prefs = m_session.prefs();
    bool useCustom = prefs.boolean(P::useCustomPath);
    QString folder = prefs.string(P::customDatabasePath);
    if (key == P::useCustomPath) {
        if (const Error e = AttributeText::flag(Preferences::info(key).name, value, &useCustom))
            return failure(e.text);
    } else {
        folder = value.trimmed();
    }
    if (useCustom && folder.isEmpty())
        return failure(Tr::tr("Name the folder first: tabo-cli prefs set customDatabasePath FOLDER."));
    if (const QString refused = PrefRules::refusal(P::customDatabasePath, folder); !refused.isEmpty())
        return failure(refused);
    // Only a change of where the store is used moves it.
    if (useCustom == prefs.boolean(P::useCustomPath) && (!useCustom || folder == prefs.string(P::customDatabasePath))) {
        prefs.setString(P::customDatabasePath, folder);
        if (const Error e = prefs.syncChecked())
            return failure(e.message());
        return kExitOk;
    }
    if (!m_session.store())
        return kExitFailure;
    if (!m_session.controller().moveStore(useCustom, useCustom ? folder : QString()))
        return failure(Tr::tr("The database was not moved; the settings still name where it is."));
    if (!useCustom)
        prefs.setString(P::customDatabasePath, folder);
    if (const Error e = prefs.syncChecked())
        return failure(e.message());
    printOut(m_session.controller().storeFilePath());
    return kExitOk;
}

int PrefsCommand::installLanguage(const QString &number)
{
    bool ok = false;
    const qint64 n = number.toLongLong(&ok);
    if (!ok)
        return usageError(Tr::tr("“%1” is not a number.").arg(number));
    // The assistant's first step: also installs the built-in designs once.
    if (m_session.controller().firstAssiTabAction(n)) {
        if (m_session.prefs().boolean(Preferences::centExactTotals))
            printOut(Tr::tr("New documents are calculated to the cent. %1 "
                            "(tabo-cli prefs set centExactTotals false keeps the classic calculation.)")
                         .arg(AppController::centExactTotalsReason()));
        return kExitOk;
    }
    // The first-start assistant goes on without defaults; so do we.
    if (Preferences::languageDefaultsResource(n).isEmpty()) {
        printError(Tr::tr("No language defaults for %1; nothing was installed.").arg(n));
        return kExitOk;
    }
    return failure(Tr::tr("The language defaults %1 could not be read.").arg(n));
}

} // namespace tabo::cli
