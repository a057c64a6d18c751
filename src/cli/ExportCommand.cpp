#include "cli/ExportCommand.h"

#include "app/AppController.h"
#include "app/FileCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)
};
} // namespace

namespace tabo::cli {

ExportCommand::ExportCommand(Session &session)
    : Command(session, QStringLiteral("export"), QStringLiteral("ID --tabo FILE | --xml FILE"),
        Tr::tr("Write a document as a Tabo document (the form import reads) or as an XML property "
               "list."))
{
}

int ExportCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption tabo(QStringLiteral("tabo"), Tr::tr("Tabo document to write."), QStringLiteral("FILE"));
    const QCommandLineOption xml(QStringLiteral("xml"), Tr::tr("XML file to write."), QStringLiteral("FILE"));
    parser.addOptions({tabo, xml});
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (parser.isSet(tabo) == parser.isSet(xml))
        return usageError(Tr::tr("Give one of --tabo and --xml."));
    const Record *doc = m_session.document(parser.positionalArguments().constFirst());
    if (!doc)
        return kExitFailure;
    // The values of the `exportFormat` preference.
    const int format = parser.isSet(tabo) ? 0 : 1;
    if (const Error e = m_session.controller().files().writeInvoiceFile(
            *doc, format, parser.value(parser.isSet(tabo) ? tabo : xml)))
        return failure(e.text);
    return kExitOk;
}

} // namespace tabo::cli
