#include "gui/windows/AccountingExportSheet.h"

#include "app/AccountingExport.h"
#include "app/AppController.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/Formats.h"
#include "prefs/Preferences.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tabo {

namespace {

QDate localDay(const Date &date)
{
    return date.isValid() ? date.toDateTime().toLocalTime().date() : QDate::currentDate();
}

} // namespace

AccountingExportSheet::AccountingExportSheet(AppController &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_title(new QLabel(this))
    , m_begin(new QDateEdit(this))
    , m_end(new QDateEdit(this))
    , m_kind(new QComboBox(this))
    , m_itemsKind(new QComboBox(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("accountingExportSheet"));
    setWindowModality(Qt::WindowModal);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setObjectName(QStringLiteral("sheetLabel"));
    m_count->setObjectName(QStringLiteral("exportCount"));
    for (QDateEdit *edit : { m_begin, m_end }) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(Formats::dateFieldFormat());
    }
    // In preference order: the index is the stored value.
    m_kind->addItems({ tr("All except created"), tr("Paid"), tr("Overdue") });
    m_itemsKind->addItems({ tr("One summary line per invoice"), tr("Every line") });

    auto *form = new QFormLayout;
    form->addRow(tr("From:"), m_begin);
    form->addRow(tr("To:"), m_end);
    form->addRow(tr("Invoices:"), m_kind);
    form->addRow(tr("Lines:"), m_itemsKind);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addLayout(form);
    layout->addWidget(m_count);
    layout->addWidget(buttons);

    connect(m_begin, &QDateEdit::dateChanged, this, &AccountingExportSheet::rangeChanged);
    connect(m_end, &QDateEdit::dateChanged, this, &AccountingExportSheet::rangeChanged);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &AccountingExportSheet::choiceChanged);
    connect(m_itemsKind, &QComboBox::currentIndexChanged, this, &AccountingExportSheet::choiceChanged);
    connect(buttons, &QDialogButtonBox::accepted, this, &AccountingExportSheet::send);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Accessibility::labelFields(this);
}

void AccountingExportSheet::begin(int sendToTag)
{
    m_app.accounting().sendToVorlux(sendToTag);
    m_title->setText(m_app.accounting().sheetLabel());
    setWindowTitle(m_title->text());
    load();
    open();
}

void AccountingExportSheet::load()
{
    Preferences &prefs = m_app.prefs();
    // A kind outside the three choices selects nothing at all; what the sheet
    // shows is what gets sent.
    if (prefs.integer(Preferences::prefsVorluxExportKind) < 0 || prefs.integer(Preferences::prefsVorluxExportKind) > 2)
        prefs.setInteger(Preferences::prefsVorluxExportKind, 0);
    m_loading = true;
    m_begin->setDate(localDay(prefs.date(Preferences::prefsVorluxExportBeginDate)));
    m_end->setDate(localDay(prefs.date(Preferences::prefsVorluxExportEndDate)));
    m_kind->setCurrentIndex(int(prefs.integer(Preferences::prefsVorluxExportKind)));
    m_itemsKind->setCurrentIndex(prefs.integer(Preferences::prefsVorluxExportItemsKind) == 0 ? 0 : 1);
    m_loading = false;
    select();
}

void AccountingExportSheet::rangeChanged()
{
    if (m_loading)
        return;
    // Whole days, both ends included: a picked day covers every invoice of it.
    Preferences &prefs = m_app.prefs();
    prefs.setDate(Preferences::prefsVorluxExportBeginDate, Date::fromDateTime(m_begin->date().startOfDay()));
    prefs.setDate(Preferences::prefsVorluxExportEndDate, Date::fromDateTime(m_end->date().endOfDay()));
    select();
}

void AccountingExportSheet::choiceChanged()
{
    if (m_loading)
        return;
    Preferences &prefs = m_app.prefs();
    prefs.setInteger(Preferences::prefsVorluxExportKind, m_kind->currentIndex());
    prefs.setInteger(Preferences::prefsVorluxExportItemsKind, m_itemsKind->currentIndex());
    select();
}

void AccountingExportSheet::select()
{
    m_app.accounting().doTheFilter();
    const qint64 count = m_app.prefs().integer(Preferences::prefsVorluxExportCount);
    m_count->setText(count == 1 ? tr("1 invoice will be sent.") : tr("%1 invoices will be sent.").arg(count));
}

void AccountingExportSheet::send()
{
    // A failure has been shown in its own alert; the sheet ends either way.
    m_app.accounting().closeVorluxSheet(true);
    accept();
}

} // namespace tabo
