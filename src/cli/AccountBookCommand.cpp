#include "cli/AccountBookCommand.h"

#include "app/AccountBook.h"
#include "app/AppController.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AccountBookCommand)
};
} // namespace

namespace tabo::cli {

AccountBookCommand::AccountBookCommand(Session &session)
    : Command(session, QStringLiteral("account-book"), QStringLiteral("[--filter TAG] [--search TEXT] --pdf FILE"),
        Tr::tr("Write the account book of the invoices a filter and search show as PDF."))
{
}

int AccountBookCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption filter = filterOption();
    const QCommandLineOption search = searchOption();
    const QCommandLineOption pdf(QStringLiteral("pdf"), Tr::tr("The PDF to write."), QStringLiteral("FILE"));
    parser.addOptions({filter, search, pdf});
    int code = kExitOk;
    if (!parse(parser, args, 0, 0, &code))
        return code;
    unsigned tag = 0;
    if (!filterTag(parser, &tag, &code))
        return code;
    if (!parser.isSet(pdf))
        return usageError(Tr::tr("Give the PDF to write with --pdf FILE."));
    if (!m_session.store())
        return kExitFailure;
    arrangeList(parser, tag);
    AccountBook book = m_session.controller().accountBook();
    if (!book.writePdf(parser.value(pdf)))
        return failure(Tr::tr("The account book could not be written to “%1”.").arg(parser.value(pdf)));
    return kExitOk;
}

} // namespace tabo::cli
