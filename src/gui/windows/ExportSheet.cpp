#include "gui/windows/ExportSheet.h"

#include "app/AppController.h"
#include "app/EInvoiceCommands.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/windows/PdfPane.h"
#include "prefs/Preferences.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

using P = Preferences;

namespace {

QString okText(int kind)
{
    switch (kind) {
    case OutputCommands::Print:
        return ExportSheet::tr("Print");
    case OutputCommands::SavePdf:
        return ExportSheet::tr("Save…");
    case OutputCommands::Email:
        return ExportSheet::tr("E-mail");
    default:
        return ExportSheet::tr("OK");
    }
}

} // namespace

ExportSheet::ExportSheet(AppController &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_title(new QLabel(this))
    , m_pane(new PdfPane(this))
    , m_busy(new QProgressBar(this))
{
    setObjectName(QStringLiteral("exportSheet"));
    setWindowModality(Qt::WindowModal);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setObjectName(QStringLiteral("sheetLabel"));
    m_pane->setMinimumSize(360, 240);
    m_busy->setObjectName(QStringLiteral("exportBusy"));
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setMaximumWidth(160);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("exportOK"));
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    m_form = new QComboBox(this);
    m_form->setObjectName(QStringLiteral("einvoiceForm"));
    m_form->addItems(EInvoiceCommands::outputFormLabels());
    connect(m_form, &QComboBox::activated, this, [this](int index) {
        m_app.prefs().setInteger(P::einvoiceForm, index);
        m_app.prefs().sync();
    });
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_form);
    bottom->addWidget(m_busy);
    bottom->addStretch();
    bottom->addWidget(buttons);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_pane, 1);
    layout->addLayout(bottom);
    ScreenFit::resize(this, QSize(640, 820));

    connect(buttons, &QDialogButtonBox::accepted, this, &ExportSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportSheet::reject);
    OutputCommands &outputs = m_app.outputs();
    connect(&outputs, &OutputCommands::exportReady, this, &ExportSheet::exportReady);
    connect(&outputs, &OutputCommands::busyChanged, this, &ExportSheet::busyChanged);
    connect(&outputs, &OutputCommands::exportFinished, m_pane, &PdfPane::clear);
}

bool ExportSheet::begin(int kind, QWidget *window)
{
    if (isVisible())
        reject();
    // A sheet belongs to the window it was asked from: the main window or
    // the preview.
    if (window && window != parentWidget())
        setParent(window, windowFlags());
    m_pane->clear();
    m_ok->setEnabled(false);
    m_ok->setText(okText(kind));
    m_busy->show();
    const QString title = OutputCommands::exportSheetTitle(kind);
    // Only invoices have e-invoices, and only saving and mailing hand them over.
    const Record *doc = m_app.currentInvoice();
    m_form->setVisible((kind == OutputCommands::SavePdf || kind == OutputCommands::Email) && doc
                       && doc->integer(Invoice::kind) == 1);
    m_form->setCurrentIndex(int(std::clamp<qint64>(m_app.prefs().integer(P::einvoiceForm), 0, m_form->count() - 1)));
    m_title->setText(title);
    setWindowTitle(title);
    m_active = true;
    if (!m_app.outputs().openExport(kind)) {
        m_active = false;
        return false;
    }
    open();
    return true;
}

void ExportSheet::exportReady(const QString &path, const QString &title)
{
    if (!m_active)
        return;
    if (!title.isEmpty()) {
        m_title->setText(title);
        setWindowTitle(title);
    }
    // A PDF that cannot be shown cannot be sent on either: only Cancel is left.
    m_busy->hide();
    if (m_pane->load(path))
        setOKEnabled();
}

void ExportSheet::setOKEnabled()
{
    m_pane->fit();
    m_pane->setSinglePage(true);
    m_pane->zoomInOnce();
    m_ok->setEnabled(true);
    m_ok->setDefault(true);
}

void ExportSheet::busyChanged(bool busy)
{
    if (!busy)
        m_busy->hide();
}

void ExportSheet::accept()
{
    // Return may reach here before the PDF is there.
    if (!m_active || !m_ok->isEnabled())
        return;
    end(Accepted);
    m_app.outputs().exportCommand();
}

void ExportSheet::reject()
{
    const bool active = m_active;
    end(Rejected);
    if (active)
        m_app.outputs().cancelExport();
}

void ExportSheet::end(int result)
{
    m_active = false;
    m_ok->setEnabled(false);
    m_pane->clear();
    QDialog::done(result);
}

} // namespace tabo
