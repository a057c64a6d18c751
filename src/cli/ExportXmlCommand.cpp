#include "cli/ExportXmlCommand.h"

#include "app/AppController.h"
#include "app/FileCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ExportXmlCommand)
};
} // namespace

namespace tabo::cli {

ExportXmlCommand::ExportXmlCommand(Session &session)
    : Command(session, QStringLiteral("export-xml"), QStringLiteral("FILE [--filter TAG]"),
        Tr::tr("Write every document, or those the list shows under a filter tag (as in list), "
               "to an XML property list."))
{
}

int ExportXmlCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption filter = filterOption();
    parser.addOption(filter);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    unsigned tag = 0;
    if (!filterTag(parser, &tag, &code))
        return code;
    if (!m_session.store())
        return kExitFailure;
    AppController &app = m_session.controller();
    if (parser.isSet(filter)) {
        app.setFilterTag(tag);
        app.applyFilter();
    }
    if (const Error e = app.files().writeItemsXml(parser.isSet(filter), parser.positionalArguments().constFirst()))
        return failure(e.text);
    return kExitOk;
}

} // namespace tabo::cli
