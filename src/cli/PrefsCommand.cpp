#include "cli/PrefsCommand.h"

#include "app/AppController.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "prefs/Preferences.h"

#include <QCommandLineParser>

namespace tabo::cli {

PrefsCommand::PrefsCommand(Session &session)
    : Command(session, QStringLiteral("prefs"), QStringLiteral("get KEY | set KEY VALUE | install-language N"),
              QStringLiteral("Read or write a preference; install the language defaults "
                             "(0 English, 1 German, 2 French, 3 Spanish)."))
{
}

int PrefsCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 2, 3, &code, true))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &action = pos.at(0);
    if (action == QLatin1String("get") && pos.size() == 2)
        return get(pos.at(1));
    if (action == QLatin1String("set") && pos.size() == 3)
        return set(pos.at(1), pos.at(2));
    if (action == QLatin1String("install-language") && pos.size() == 2)
        return installLanguage(pos.at(1));
    return usageError();
}

int PrefsCommand::get(const QString &key)
{
    const int idx = Preferences::keyIndex(key);
    if (idx < 0)
        return failure(QStringLiteral("Unknown preference key “%1”.").arg(key));
    printOut(m_session.prefs().toText(Preferences::Key(idx)));
    return kExitOk;
}

int PrefsCommand::set(const QString &key, const QString &value)
{
    QString reason;
    if (!m_session.prefs().setFromText(key, value, &reason))
        return failure(reason);
    m_session.prefs().sync();
    return kExitOk;
}

int PrefsCommand::installLanguage(const QString &number)
{
    bool ok = false;
    const qint64 n = number.toLongLong(&ok);
    if (!ok)
        return usageError(QStringLiteral("“%1” is not a number.").arg(number));
    // The assistant's first step: also installs the built-in designs once.
    if (m_session.controller().firstAssiTabAction(n))
        return kExitOk;
    // The first-start assistant goes on without defaults; so do we.
    if (Preferences::languageDefaultsResource(n).isEmpty()) {
        printError(QStringLiteral("No language defaults for %1; nothing was installed.").arg(n));
        return kExitOk;
    }
    return failure(QStringLiteral("The language defaults %1 could not be read.").arg(n));
}

} // namespace tabo::cli
