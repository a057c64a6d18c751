#include "gui/windows/ScheduleWindow.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "app/Interaction.h"
#include "app/RecurringCommands.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/ScreenFit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tabo {

namespace {

enum Column { Number, Copies, Every, Next, Written, ColumnCount };

} // namespace

ScheduleWindow::ScheduleWindow(AppController &app, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_app(app)
{
    setObjectName(QStringLiteral("scheduleWindow"));
    setWindowTitle(tr("Repeated Invoices"));

    auto *form = new QGroupBox(tr("Repeat the current invoice"), this);
    m_source = new QLabel(form);
    m_source->setObjectName(QStringLiteral("scheduleSource"));
    m_every = new QSpinBox(form);
    m_every->setRange(1, 520);
    m_every->setObjectName(QStringLiteral("scheduleEvery"));
    m_unit = new QComboBox(form);
    m_unit->setObjectName(QStringLiteral("scheduleUnit"));
    m_unit->setAccessibleName(tr("Interval"));
    // The data are the words the schedule is made from.
    m_unit->addItem(tr("months"), QStringLiteral("months"));
    m_unit->addItem(tr("quarters"), QStringLiteral("quarters"));
    m_unit->addItem(tr("years"), QStringLiteral("years"));
    m_unit->addItem(tr("weeks"), QStringLiteral("weeks"));
    m_from = new QDateEdit(QDate::currentDate(), form);
    m_from->setObjectName(QStringLiteral("scheduleFrom"));
    m_useUntil = new QCheckBox(tr("Until"), form);
    m_until = new QDateEdit(QDate::currentDate().addYears(1), form);
    m_until->setAccessibleName(tr("Last day"));
    m_count = new QSpinBox(form);
    m_count->setObjectName(QStringLiteral("scheduleCount"));
    m_count->setRange(0, 1000);
    m_count->setSpecialValueText(tr("no limit"));
    for (QDateEdit *edit : { m_from, m_until }) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(Formats::dateFieldFormat());
    }
    m_until->setEnabled(false);
    connect(m_useUntil, &QCheckBox::toggled, m_until, &QWidget::setEnabled);
    connect(m_useUntil, &QCheckBox::toggled, m_count, [this](bool on) {
        m_count->setEnabled(!on);
        if (on)
            m_count->setValue(0);
    });
    m_send = new QCheckBox(tr("E-mail each invoice when it is written (Tabo asks first)"), form);
    m_add = new QPushButton(tr("Repeat"), form);
    m_add->setObjectName(QStringLiteral("scheduleAdd"));
    connect(m_add, &QPushButton::clicked, this, &ScheduleWindow::addSchedule);

    auto *grid = new QGridLayout(form);
    grid->addWidget(new QLabel(tr("Invoice:"), form), 0, 0);
    grid->addWidget(m_source, 0, 1, 1, 3);
    grid->addWidget(new QLabel(tr("Every:"), form), 1, 0);
    grid->addWidget(m_every, 1, 1);
    grid->addWidget(m_unit, 1, 2);
    grid->addWidget(new QLabel(tr("First on:"), form), 2, 0);
    grid->addWidget(m_from, 2, 1);
    grid->addWidget(m_useUntil, 3, 0);
    grid->addWidget(m_until, 3, 1);
    grid->addWidget(new QLabel(tr("Number of invoices:"), form), 4, 0);
    grid->addWidget(m_count, 4, 1);
    grid->addWidget(m_send, 5, 0, 1, 4);
    grid->addWidget(m_add, 6, 3, Qt::AlignRight);
    grid->setColumnStretch(3, 1);

    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setObjectName(QStringLiteral("scheduleTable"));
    m_table->setAccessibleName(tr("Repeated invoices"));
    m_table->setHorizontalHeaderLabels({ tr("No."), tr("Copies"), tr("Every"), tr("Next"), tr("Written") });
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->horizontalHeader()->setSectionResizeMode(Copies, QHeaderView::Stretch);
    m_pause = new QPushButton(tr("Pause"), this);
    m_pause->setObjectName(QStringLiteral("schedulePause"));
    m_remove = new QPushButton(tr("Remove"), this);
    m_remove->setObjectName(QStringLiteral("scheduleRemove"));
    connect(m_pause, &QPushButton::clicked, this, [this] { changeSelected(false); });
    connect(m_remove, &QPushButton::clicked, this, [this] { changeSelected(true); });
    connect(m_table, &QTableWidget::itemSelectionChanged, this, [this] {
        const QList<QTableWidgetItem *> selected = m_table->selectedItems();
        const bool paused = !selected.isEmpty() && selected.first()->data(Qt::UserRole + 1).toBool();
        m_pause->setText(paused ? tr("Resume") : tr("Pause"));
        m_pause->setEnabled(!selected.isEmpty());
        m_remove->setEnabled(!selected.isEmpty());
    });
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_pause);
    buttons->addWidget(m_remove);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(form);
    layout->addWidget(m_table, 1);
    layout->addLayout(buttons);
    Accessibility::labelFields(this);
    ScreenFit::resize(this, QSize(760, 560));
}

void ScheduleWindow::showFor(Record *invoice)
{
    m_invoice = invoice && invoice->integer(Invoice::kind) == 1 ? invoice : nullptr;
    m_source->setText(m_invoice ? m_app.documents().describe(*m_invoice)
                                : tr("Select an invoice in the list to repeat it."));
    m_add->setEnabled(m_invoice != nullptr);
    reload();
    show();
    raise();
    activateWindow();
}

void ScheduleWindow::reload()
{
    RecurringCommands &recurring = m_app.recurring();
    const Result<QList<Schedule>> schedules = recurring.list();
    const QList<Schedule> list = schedules ? schedules.value() : QList<Schedule>();
    m_table->setRowCount(int(list.size()));
    for (int row = 0; row < list.size(); ++row) {
        const Schedule &s = list.at(row);
        const QDate next = s.next();
        const QString state = s.paused ? tr("paused")
            : next.isValid()           ? QLocale().toString(next, QLocale::ShortFormat)
                                       : tr("ended");
        const QStringList cells { QString::number(s.id), recurring.sourceName(s), s.recurrence.describe(), state,
            QString::number(s.made) };
        for (int column = 0; column < ColumnCount; ++column) {
            auto *item = new QTableWidgetItem(cells.at(column));
            item->setData(Qt::UserRole, s.id);
            item->setData(Qt::UserRole + 1, s.paused);
            m_table->setItem(row, column, item);
        }
    }
    m_table->resizeColumnsToContents();
    m_pause->setEnabled(false);
    m_remove->setEnabled(false);
}

void ScheduleWindow::addSchedule()
{
    if (!m_invoice)
        return;
    const QString every = QStringLiteral("%1 %2").arg(m_every->value()).arg(m_unit->currentData().toString());
    const Result<Recurrence> recurrence = Recurrence::make(
        every, m_from->date(), m_useUntil->isChecked() ? m_until->date() : QDate(), m_count->value());
    Result<Schedule> added = recurrence
        ? m_app.recurring().add(m_invoice->text(Invoice::uniqueID), recurrence.value(), m_send->isChecked())
        : Result<Schedule>(recurrence.error());
    if (!added) {
        m_app.ui().presentError(added.error());
        return;
    }
    reload();
    // A first date that has come already is written at once.
    if (added.value().next().isValid() && added.value().next() <= QDate::currentDate())
        m_app.runRecurring();
}

void ScheduleWindow::changeSelected(bool remove)
{
    const QList<QTableWidgetItem *> selected = m_table->selectedItems();
    if (selected.isEmpty())
        return;
    const qint64 id = selected.first()->data(Qt::UserRole).toLongLong();
    const bool paused = selected.first()->data(Qt::UserRole + 1).toBool();
    RecurringCommands &recurring = m_app.recurring();
    if (const Error e = remove ? recurring.remove(id) : recurring.setPaused(id, !paused))
        m_app.ui().presentError(e);
    reload();
}

} // namespace tabo
