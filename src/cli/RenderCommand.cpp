#include "cli/RenderCommand.h"

#include "prefs/ProtectedFiles.h"
#include "app/DesignLibrary.h"
#include "render/PageRenderer.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/OutputRun.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include "render/PageRenderer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QSet>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(RenderCommand)
};
} // namespace

namespace tabo::cli {

RenderCommand::RenderCommand(Session &session)
    : Command(session, QStringLiteral("render"),
        QStringLiteral("ID --html FILE | ID --pdf FILE | ID... --out DIR | --all [--filter TAG] --out DIR "
                       "[--reminder | --slip] [--design TITLE]"),
        Tr::tr("Write a document's page as HTML or PDF (as a payment reminder or delivery slip with "
               "the sheet's default texts), or one PDF per document, named after its number, into a "
               "folder. --design renders through that design instead of the default one."))
{
}

int RenderCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption html(QStringLiteral("html"), Tr::tr("HTML file to write."), QStringLiteral("FILE"));
    const QCommandLineOption pdf(QStringLiteral("pdf"), Tr::tr("PDF file to write."), QStringLiteral("FILE"));
    const QCommandLineOption out(
        QStringLiteral("out"), Tr::tr("Folder for one PDF per document."), QStringLiteral("DIR"));
    const QCommandLineOption all(QStringLiteral("all"), Tr::tr("Every document the list shows."));
    const QCommandLineOption filter(
        QStringLiteral("filter"), Tr::tr("Filter tag (with --all)."), QStringLiteral("TAG"));
    const QCommandLineOption reminder(QStringLiteral("reminder"), Tr::tr("As a payment reminder."));
    const QCommandLineOption slip(QStringLiteral("slip"), Tr::tr("As a delivery slip."));
    const QCommandLineOption design(
        QStringLiteral("design"), Tr::tr("Design to render with."), QStringLiteral("TITLE"));
    parser.addOptions({html, pdf, out, all, filter, reminder, slip, design});
    int code = kExitOk;
    if (!parse(parser, args, 0, -1, &code))
        return code;
    const QStringList ids = parser.positionalArguments();
    if (int(parser.isSet(html)) + int(parser.isSet(pdf)) + int(parser.isSet(out)) != 1)
        return usageError(Tr::tr("Give one of --html, --pdf and --out."));
    if (parser.isSet(reminder) && parser.isSet(slip))
        return usageError(Tr::tr("Give at most one of --reminder and --slip."));
    if (parser.isSet(filter) && !parser.isSet(all))
        return usageError(Tr::tr("--filter goes with --all."));
    if (parser.isSet(all) && !ids.isEmpty())
        return usageError(Tr::tr("Give IDs or --all, not both."));
    if (!parser.isSet(out) && (parser.isSet(all) || ids.size() != 1))
        return usageError(Tr::tr("--html and --pdf write one document; use --out DIR for several."));
    if (parser.isSet(out) && ids.isEmpty() && !parser.isSet(all))
        return usageError(Tr::tr("Missing argument."));
    unsigned tag = 0;
    if (!filterTag(parser, &tag, &code))
        return code;

    if (!m_session.store())
        return kExitFailure;
    AppController &app = m_session.controller();
    OutputCommands &outputs = app.outputs();
    const Record *used = nullptr;
    if (parser.isSet(design)) {
        const Result<Record *> chosen = OutputRun::design(m_session, parser.value(design));
        if (!chosen)
            return failure(chosen.error());
        used = chosen.value();
    } else if (!outputs.checkDesignsAvailable()) {
        return kExitFailure;
    }
    // A design without its page, rows or style renders only the failure text:
    // a folder full of that is no output.
    if (!used)
        used = app.designs().currentDesign();
    if (!PageRenderer::canRender(used))
        return failure(Tr::tr("The design “%1” cannot be used: its page, row or style text is missing. "
                              "Choose another design (tabo-cli design list) or fix this one.")
                           .arg(used ? used->text(Design::title) : QString()));
    LetterMode mode;
    mode.isReminderAction = parser.isSet(reminder);
    mode.isSlipAction = parser.isSet(slip);
    if (mode.isReminderAction)
        mode.reminder = outputs.openReminderSheet();
    if (mode.isSlipAction)
        mode.slip = outputs.openSlipSheet();

    QList<Record *> documents;
    if (parser.isSet(all)) {
        app.setFilterTag(tag);
        app.applyFilter();
        documents = app.documentList().shown();
    } else {
        // Every ID is checked before anything is written.
        for (const QString &id : ids) {
            Record *doc = m_session.document(id);
            if (!doc)
                return kExitFailure;
            documents << doc;
        }
    }
    QList<RenderRequest> requests;
    for (const Record *doc : std::as_const(documents))
        requests << outputs.request(*doc, mode, used);
    if (parser.isSet(html))
        return writeHtml(requests.constFirst(), parser.value(html));
    if (parser.isSet(pdf))
        return writePdf(requests.constFirst(), parser.value(pdf));
    return writeFolder(requests, parser.value(out));
}

int RenderCommand::writeHtml(const RenderRequest &request, const QString &path)
{
    if (const Error e = ProtectedFiles::writeAtomically(
            path, m_session.controller().outputs().invoiceHTMLString(request).toUtf8()))
        return failure(e.text);
    return kExitOk;
}

int RenderCommand::writePdf(const RenderRequest &request, const QString &path)
{
    if (!m_session.controller().outputs().renderToFile(request, path))
        return failure(Tr::tr("The PDF file “%1” could not be created.").arg(path));
    return kExitOk;
}

int RenderCommand::writeFolder(const QList<RenderRequest> &requests, const QString &dir)
{
    if (!QDir().mkpath(dir))
        return failure(Tr::tr("The folder “%1” could not be created.").arg(dir));
    QSet<QString> taken;
    QStringList paths;
    for (const RenderRequest &request : requests) {
        const Record *doc = request.document;
        const QString base = safeFileName(doc->text(Invoice::number), doc->text(Invoice::uniqueID));
        QString name = base;
        // Numbers need not be unique (a quote and an invoice, an edited pattern).
        for (int n = 2; taken.contains(name.toLower()); ++n)
            name = QStringLiteral("%1 (%2)").arg(base).arg(n);
        taken.insert(name.toLower());
        paths << QDir(dir).filePath(name + QStringLiteral(".pdf"));
    }
    const QStringList failed = m_session.controller().outputs().renderToFiles(requests, paths);
    for (const QString &path : paths)
        if (!failed.contains(path))
            printOut(path);
    if (!failed.isEmpty())
        return failure(Tr::tr("The PDF file “%1” could not be created.").arg(failed.constFirst()));
    return kExitOk;
}

QString RenderCommand::safeFileName(const QString &number, const QString &fallback)
{
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    QString name = number;
    for (QChar &c : name) {
        if (refused.contains(c) || c.category() == QChar::Other_Control)
            c = QLatin1Char('-');
    }
    name = name.trimmed();
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    name.truncate(200);
    if (name.isEmpty())
        return fallback.isEmpty() ? QStringLiteral("document") : safeFileName(fallback, QString());
    return name;
}

} // namespace tabo::cli
