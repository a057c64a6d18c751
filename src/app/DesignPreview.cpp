#include "app/DesignPreview.h"

#include "app/Interaction.h"
#include "app/OutputCommands.h"
#include "app/Workspace.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "render/PdfEngine.h"
#include "render/PageSetup.h"
#include "render/SampleDocument.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DesignPreview)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;
using namespace Qt::StringLiterals;

qsizetype lineOf(const QString &text, qsizetype at)
{
    return text.left(at).count(QLatin1Char('\n')) + 1;
}

// An opener whose closer never comes after it.
qsizetype unclosed(const QString &text, QLatin1StringView open, QLatin1StringView close)
{
    qsizetype at = text.lastIndexOf(open);
    if (at < 0)
        return -1;
    return text.indexOf(close, at + open.size()) < 0 ? at : -1;
}

// A "<" that opens a tag which the text ends before closing.
qsizetype unclosedTag(const QString &text)
{
    const qsizetype at = text.lastIndexOf(QLatin1Char('<'));
    if (at < 0 || at + 1 >= text.size())
        return at;
    const QChar next = text.at(at + 1);
    const bool opensTag = next.isLetter() || next == QLatin1Char('/') || next == QLatin1Char('!');
    return opensTag && text.indexOf(QLatin1Char('>'), at) < 0 ? at : -1;
}

} // namespace

DesignPreview::DesignPreview(StoreAccess &store, WorkingFiles &files, OutputCommands &outputs, Preferences &prefs,
                             Interaction &ui, QObject *parent)
    : QObject(parent)
    , m_access(store)
    , m_files(files)
    , m_outputs(outputs)
    , m_prefs(prefs)
    , m_ui(ui)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kDelayMs);
    connect(&m_timer, &QTimer::timeout, this, &DesignPreview::render);
}

QString DesignPreview::livePdfPath()
{
    return Locations::dataFile(QStringLiteral("DesignPreview.pdf"));
}

void DesignPreview::setTexts(const QString &invoice, const QString &item, const QString &css)
{
    m_invoice = invoice;
    m_item = item;
    m_css = css;
    m_timer.start();
}

void DesignPreview::renderNow()
{
    m_timer.stop();
    render();
}

QString DesignPreview::problem(const QString &invoice, const QString &item, const QString &css)
{
    if (invoice.trimmed().isEmpty())
        return tr("The page is empty.");
    if (item.trimmed().isEmpty())
        return tr("The row is empty.");
    if (const qsizetype at = unclosed(invoice, "<!--"_L1, "-->"_L1); at >= 0)
        return tr("Page, line %1: a comment is not closed (“-->” missing).").arg(lineOf(invoice, at));
    if (const qsizetype at = unclosedTag(invoice); at >= 0)
        return tr("Page, line %1: a tag is not closed (“>” missing).").arg(lineOf(invoice, at));
    if (const qsizetype at = unclosed(item, "<!--"_L1, "-->"_L1); at >= 0)
        return tr("Row, line %1: a comment is not closed (“-->” missing).").arg(lineOf(item, at));
    if (const qsizetype at = unclosedTag(item); at >= 0)
        return tr("Row, line %1: a tag is not closed (“>” missing).").arg(lineOf(item, at));
    if (const qsizetype at = unclosed(css, "/*"_L1, "*/"_L1); at >= 0)
        return tr("Stylesheet, line %1: a comment is not closed (“*/” missing).").arg(lineOf(css, at));
    if (css.count(QLatin1Char('{')) != css.count(QLatin1Char('}')))
        return tr("Stylesheet: a “{” and a “}” do not pair up.");
    return {};
}

QString DesignPreview::sampleHtml(const Record *design) const
{
    const SampleDocument sample(m_prefs);
    LetterMode onScreen;
    onScreen.onScreen = true;
    return m_outputs.renderer().invoiceHTMLString(design, sample.invoice(), sample.items(), onScreen);
}

void DesignPreview::render()
{
    // One rendering at a time; changes made meanwhile are rendered next.
    if (m_rendering) {
        m_again = true;
        return;
    }
    const QString note = problem(m_invoice, m_item, m_css);
    if (!note.isEmpty()) {
        Q_EMIT failed(note);
        return;
    }
    Record design(nullptr, EntityId::Design, 0);
    design.setText(Design::invoice, m_invoice);
    design.setText(Design::item, m_item);
    design.setText(Design::css, m_css);
    m_rendering = true;
    const QString path = livePdfPath();
    m_outputs.engine().render(sampleHtml(&design), PageSetup::fromPreferences(m_prefs), path,
                                    [this, alive = QPointer<DesignPreview>(this), path](bool ok) {
                                        // The engine outlives the pane and answers
                                        // what it still holds when it goes.
                                        if (!alive)
                                            return;
                                        m_rendering = false;
                                        if (ok)
                                            Q_EMIT ready(path);
                                        else
                                            Q_EMIT failed(tr("The page could not be rendered."));
                                        if (std::exchange(m_again, false))
                                            render();
                                    });
}

void DesignPreview::generatePreview(const Record *design)
{
    m_prefs.setBool(P::isMainPreviewAction, false);
    m_access.save();
    const QString path = m_files.pdfPath();
    const bool ok = m_outputs.renderHtmlToFile(sampleHtml(design), path);
    if (!ok) {
        m_ui.alert(
            Tr::tr("Ooops!"), Tr::tr("Something went really wrong while creating the preview."), { Tr::tr("OK") });
        return;
    }
    Q_EMIT previewReady(path);
}

bool DesignPreview::printPreview()
{
    PrintRequest request;
    request.jobTitle
        = QStringLiteral("%1 | %2 | %3").arg(m_prefs.string(P::prefsName), QStringLiteral("1234"), Tr::tr("Invoice"));
    m_prefs.setString(P::currentPrintJobTitle, request.jobTitle);
    if (!m_ui.printDialog(request))
        return false;
    if (const Error error = PrintSystem::printFile(m_files.pdfPath(), request)) {
        m_ui.alert(Tr::tr("Error!"), error.message(), { Tr::tr("OK") });
        return false;
    }
    return true;
}

} // namespace tabo
