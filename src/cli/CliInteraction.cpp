#include "cli/CliInteraction.h"

#include <QProcess>

#include "cli/Console.h"

#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(CliInteraction)
};
} // namespace

namespace tabo::cli {

int CliInteraction::decliningButton(const QStringList &buttons)
{
    // Buttons arrive in the person's language; the English prefixes cover
    // commands that run without a translation.
    const QStringList declining { Tr::tr("Cancel"), Tr::tr("Don't Update Database and Quit Tabo 2") };
    for (int i = 0; i < buttons.size(); ++i) {
        const QString &b = buttons.at(i);
        if (declining.contains(b) || b.startsWith(QLatin1String("Cancel")) || b.startsWith(QLatin1String("Don't"))
            || b.startsWith(QLatin1String("Don’t")))
            return i;
    }
    return int(buttons.size()) - 1;
}

int CliInteraction::alert(const QString &title, const QString &text, const QStringList &buttons)
{
    if (buttons.size() >= 2) {
        const int decline = decliningButton(buttons);
        // The confirming button is the first one that does not decline.
        const int confirm = decline == 0 ? 1 : 0;
        const auto preset = m_answers.constFind(title);
        if (preset != m_answers.cend())
            return *preset ? confirm : decline;
        // A question answered by --yes is no news to the person who typed it.
        if (m_confirm)
            return confirm;
        m_refused = true;
        ++m_messages;
        printError(title + QStringLiteral(": ") + text);
        return decline;
    }
    ++m_messages;
    printError(title + QStringLiteral(": ") + text);
    return 0;
}

void CliInteraction::presentError(const Error &error)
{
    // The controller follows a failed open with a generic "no store" error;
    // on a terminal the first, specific reason is the one line worth showing.
    if (m_errorPresented && error.code == 9999 && error.source == Error::Tabo)
        return;
    m_errorPresented = true;
    ++m_messages;
    printError(error.message());
}

QString CliInteraction::openFile(const FileRequest &)
{
    return m_panelPath;
}

QString CliInteraction::saveFile(const FileRequest &)
{
    return m_panelPath;
}

// There is no dialog on the command line: the options chose the printer, or
// the request keeps the one it came with.
bool CliInteraction::printDialog(PrintRequest &request)
{
    if (!m_printer.isEmpty())
        request.printer = m_printer;
    return true;
}

bool CliInteraction::openWithDefaultApplication(const QString &path)
{
    if (!m_openFiles)
        return true;
    return QProcess::startDetached(QStringLiteral("xdg-open"), {path});
}

} // namespace tabo::cli
