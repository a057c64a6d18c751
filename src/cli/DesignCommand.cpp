#include "cli/DesignCommand.h"

#include "prefs/ProtectedFiles.h"
#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/OutputRun.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include "render/SampleDocument.h"

#include <QCommandLineParser>
#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <QCoreApplication>
#include <array>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DesignCommand)
};
} // namespace

namespace tabo::cli {

namespace {

QString kNoDesign()
{
    return Tr::tr("No design available. Please download or create a design.");
}

} // namespace

DesignCommand::DesignCommand(Session &session)
    : Command(session, QStringLiteral("design"),
        QStringLiteral("list [--json] | add [TITLE] | delete TITLE [--yes] | default TITLE | import FILE | "
                       "export TITLE FILE | preview FILE.pdf [--design TITLE] | "
                       "get TITLE [--invoice FILE] [--item FILE] [--css FILE] | "
                       "set TITLE [--invoice FILE] [--item FILE] [--css FILE]"),
        Tr::tr("Manage the designs documents are rendered with; preview writes the sample document "
               "through a design (the default one unless --design) as a PDF. get writes a design's page, row and "
               "stylesheet "
               "to files and set reads them back, to edit a design in any editor. TITLE may also be a "
               "design's unique ID."))
{
}

bool DesignCommand::rendersPages(const QStringList &args)
{
    return !args.isEmpty() && args.constFirst() == QLatin1String("preview");
}

int DesignCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    const QCommandLineOption design(QStringLiteral("design"), Tr::tr("Design to preview."), QStringLiteral("TITLE"));
    const QCommandLineOption invoice(
        QStringLiteral("invoice"), Tr::tr("The page's HTML file."), QStringLiteral("FILE"));
    const QCommandLineOption item(QStringLiteral("item"), Tr::tr("The row's HTML file."), QStringLiteral("FILE"));
    const QCommandLineOption css(QStringLiteral("css"), Tr::tr("The stylesheet file."), QStringLiteral("FILE"));
    parser.addOptions({json, design, invoice, item, css});
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 3, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &action = pos.at(0);
    const qsizetype n = pos.size();
    if (parser.isSet(json) && action != QLatin1String("list"))
        return usageError(Tr::tr("--json belongs to “design list”."));
    if (parser.isSet(design) && action != QLatin1String("preview"))
        return usageError(Tr::tr("--design belongs to “design preview”."));
    const TextFiles files {parser.value(invoice), parser.value(item), parser.value(css)};
    const bool texts = action == QLatin1String("get") || action == QLatin1String("set");
    if (files.any() && !texts)
        return usageError(Tr::tr("--invoice, --item and --css belong to “design get” and “design set”."));
    if (texts && n == 2) {
        if (!files.any())
            return usageError(Tr::tr("Name at least one of --invoice, --item and --css."));
        return action == QLatin1String("get") ? getTexts(pos.at(1), files) : setTexts(pos.at(1), files);
    }
    if (action == QLatin1String("list") && n == 1)
        return list(parser.isSet(json));
    if (action == QLatin1String("add") && n <= 2)
        return add(n == 2 ? pos.at(1) : QString());
    if (action == QLatin1String("delete") && n == 2)
        return remove(pos.at(1));
    if (action == QLatin1String("default") && n == 2)
        return makeDefault(pos.at(1));
    if (action == QLatin1String("import") && n == 2)
        return importFile(pos.at(1));
    if (action == QLatin1String("export") && n == 3)
        return exportFile(pos.at(1), pos.at(2));
    if (action == QLatin1String("preview") && n == 2) {
        const QString title = parser.value(design);
        return preview(pos.at(1), parser.isSet(design) ? &title : nullptr);
    }
    return usageError();
}

int DesignCommand::list(bool json)
{
    if (!m_session.store())
        return kExitFailure;
    DesignLibrary &library = m_session.controller().designs();
    const QList<Record *> designs = library.designs();
    const Record *current = library.currentDesign();
    if (json) {
        QStringList entries;
        for (const Record *d : designs)
            entries << QStringLiteral("{\"title\": %1, \"uniqueID\": %2, \"isDefault\": %3, \"current\": %4}")
                           .arg(JsonWriter::string(d->text(Design::title)),
                                JsonWriter::string(d->text(Design::uniqueID)),
                                d->boolean(Design::isDefault) ? QStringLiteral("true") : QStringLiteral("false"),
                                d == current ? QStringLiteral("true") : QStringLiteral("false"));
        printOut(QLatin1Char('[') + entries.join(QStringLiteral(",\n")) + QLatin1Char(']'));
        return kExitOk;
    }
    if (designs.isEmpty())
        return failure(kNoDesign()
            + Tr::tr(" Run “tabo-cli prefs install-language N” to install the built-in designs, "
                     "or “tabo-cli design add”."));
    // The one pages are rendered with is starred.
    QStringList lines;
    for (const Record *d : designs)
        lines << (d == current ? QStringLiteral("* ") : QStringLiteral("  ")) + d->text(Design::title);
    printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

int DesignCommand::add(const QString &title)
{
    if (!m_session.store())
        return kExitFailure;
    Record *design = m_session.controller().designs().addDesign();
    if (!design)
        return failure(Tr::tr("The design could not be added."));
    // The window starts editing the title here; the command line takes it as an argument.
    if (!title.isEmpty()) {
        design->setText(Design::title, title);
        if (m_session.controller().save())
            return kExitFailure;
    }
    printOut(design->text(Design::uniqueID));
    return kExitOk;
}

int DesignCommand::remove(const QString &title)
{
    const Result<Record *> found = OutputRun::design(m_session, title);
    if (!found)
        return failure(found.error());
    Record *design = found.value();
    return m_session.controller().designs().deleteDesign(design) ? kExitOk : kExitFailure;
}

int DesignCommand::makeDefault(const QString &title)
{
    const Result<Record *> found = OutputRun::design(m_session, title);
    if (!found)
        return failure(found.error());
    Record *design = found.value();
    m_session.controller().designs().makeDefaultDesign(design);
    return m_session.controller().save() ? kExitFailure : kExitOk;
}

int DesignCommand::importFile(const QString &path)
{
    if (!m_session.store())
        return kExitFailure;
    const Result<Record *> design = m_session.controller().designs().importDesignFile(path);
    if (!design)
        return failure(design.error().text);
    if (m_session.controller().save())
        return kExitFailure;
    printOut(design.value()->text(Design::title));
    return kExitOk;
}

int DesignCommand::exportFile(const QString &title, const QString &path)
{
    const Result<Record *> found = OutputRun::design(m_session, title);
    if (!found)
        return failure(found.error());
    const Record *design = found.value();
    if (const Error e = m_session.controller().designs().exportDesignFile(design, path))
        return failure(e.text);
    return kExitOk;
}

int DesignCommand::preview(const QString &path, const QString *title)
{
    if (!m_session.store())
        return kExitFailure;
    OutputCommands &outputs = m_session.controller().outputs();
    const Record *design = nullptr;
    if (title) {
        const Result<Record *> found = OutputRun::design(m_session, *title);
        if (!found)
            return failure(found.error());
        design = found.value();
    } else {
        if (!outputs.checkDesignsAvailable())
            return kExitFailure;
        design = m_session.controller().designs().currentDesign();
    }
    const SampleDocument sample(m_session.prefs());
    const QString html = outputs.renderer().invoiceHTMLString(design, sample.invoice(), sample.items());
    if (!outputs.renderHtmlToFile(html, path))
        return failure(Tr::tr("The PDF file “%1” could not be created.").arg(path));
    return kExitOk;
}

int DesignCommand::getTexts(const QString &title, const TextFiles &files)
{
    const Result<Record *> found = OutputRun::design(m_session, title);
    if (!found)
        return failure(found.error());
    const Record *design = found.value();
    const std::array<std::pair<QString, int>, 3> parts {
        {{files.invoice, Design::invoice}, {files.item, Design::item}, {files.css, Design::css}}};
    for (const auto &[path, attr] : parts) {
        if (path.isEmpty())
            continue;
        if (const Error e = ProtectedFiles::writeAtomically(path, design->text(attr).toUtf8()))
            return failure(e.text);
    }
    return kExitOk;
}

int DesignCommand::setTexts(const QString &title, const TextFiles &files)
{
    const Result<Record *> found = OutputRun::design(m_session, title);
    if (!found)
        return failure(found.error());
    Record *design = found.value();
    const std::array<std::pair<QString, int>, 3> parts {
        {{files.invoice, Design::invoice}, {files.item, Design::item}, {files.css, Design::css}}};
    // Every file is read before anything changes: a bad one changes nothing.
    std::array<QString, 3> texts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const QString &path = parts[i].first;
        if (path.isEmpty())
            continue;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return failure(Tr::tr("“%1” cannot be read.").arg(path));
        const QByteArray data = file.readAll();
        QStringDecoder utf8(QStringDecoder::Utf8);
        texts[i] = utf8(data);
        if (utf8.hasError())
            return failure(Tr::tr("“%1” is not UTF-8 text.").arg(path));
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!parts[i].first.isEmpty())
            m_session.controller().designs().setDesignText(design, parts[i].second, texts[i]);
    }
    return m_session.controller().save() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
