#include "gui/windows/ReportWindow.h"

#include "app/AppController.h"
#include "app/ReportCommands.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/widgets/Formats.h"
#include "gui/windows/PdfPane.h"
#include "prefs/Preferences.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

using P = Preferences;

ReportWindow::ReportWindow(AppController &app, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_app(app)
{
    setObjectName(QStringLiteral("reportWindow"));
    setWindowTitle(tr("Report"));
    m_useRange = new QCheckBox(tr("Only invoices dated from"), this);
    m_useRange->setObjectName(QStringLiteral("reportUseRange"));
    m_from = new QDateEdit(this);
    m_to = new QDateEdit(this);
    m_from->setAccessibleName(tr("From:"));
    m_to->setAccessibleName(tr("To:"));
    for (QDateEdit *edit : {m_from, m_to}) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(Formats::dateFieldFormat());
        connect(edit, &QDateEdit::dateChanged, this, &ReportWindow::rangeEdited);
    }
    connect(m_useRange, &QCheckBox::toggled, this, &ReportWindow::rangeEdited);
    auto *save = new QPushButton(tr("Save as PDF…"), this);
    save->setObjectName(QStringLiteral("reportSave"));
    connect(save, &QPushButton::clicked, this, [this] { m_app.reports().savePdf(); });
    auto *print = new QPushButton(tr("Print…"), this);
    print->setObjectName(QStringLiteral("reportPrint"));
    connect(print, &QPushButton::clicked, this, [this] { m_app.reports().print(); });

    auto *bar = new QHBoxLayout;
    bar->addWidget(m_useRange);
    bar->addWidget(m_from);
    bar->addWidget(new QLabel(tr("to"), this));
    bar->addWidget(m_to);
    bar->addStretch(1);
    bar->addWidget(save);
    bar->addWidget(print);
    m_view = new PdfPane(this);
    m_view->fitToWidth();
    m_view->setObjectName(QStringLiteral("reportView"));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_view, 1);
    ScreenFit::resize(this, QSize(760, 900));
    // The report follows the list: a new search or filter, a new report.
    connect(&m_app, &AppController::listChanged, this, [this] {
        if (isVisible())
            refresh();
    });
}

void ReportWindow::toggle()
{
    if (isVisible()) {
        hide();
        return;
    }
    m_app.reports().showHintOnce();
    const Preferences &prefs = m_app.prefs();
    m_loading = true;
    m_useRange->setChecked(prefs.boolean(P::useReportDateRange));
    m_from->setDate(prefs.date(P::reportDateL).toDateTime().toLocalTime().date());
    m_to->setDate(prefs.date(P::reportDateR).toDateTime().toLocalTime().date());
    m_loading = false;
    show();
    raise();
    activateWindow();
    refresh();
}

void ReportWindow::refresh()
{
    const QString path = m_app.reports().render();
    if (!path.isEmpty())
        m_view->load(path);
}

void ReportWindow::rangeEdited()
{
    m_from->setEnabled(m_useRange->isChecked());
    m_to->setEnabled(m_useRange->isChecked());
    if (m_loading)
        return;
    Preferences &prefs = m_app.prefs();
    prefs.setBool(P::useReportDateRange, m_useRange->isChecked());
    // Both days count whole: from the first moment of the first to the last
    // of the second.
    prefs.setDate(P::reportDateL, Date::fromDateTime(m_from->date().startOfDay()));
    prefs.setDate(P::reportDateR, Date::fromDateTime(m_to->date().endOfDay()));
    if (isVisible())
        refresh();
}

} // namespace tabo
