#include "gui/windows/NotificationSheet.h"

#include "app/AppController.h"
#include "app/NotificationCommands.h"
#include "gui/widgets/Formats.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

NotificationSheet::NotificationSheet(AppController &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_title(new QLineEdit(this))
    , m_subtitle(new QLineEdit(this))
    , m_text(new QPlainTextEdit(this))
    , m_date(new QDateTimeEdit(this))
{
    setObjectName(QStringLiteral("notificationSheet"));
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Remind Me"));
    m_title->setObjectName(QStringLiteral("notificationTitle"));
    m_subtitle->setObjectName(QStringLiteral("notificationSubtitle"));
    m_text->setObjectName(QStringLiteral("notificationText"));
    m_text->setTabChangesFocus(true);
    m_text->setFixedHeight(m_text->fontMetrics().lineSpacing() * 4 + 12);
    m_date->setObjectName(QStringLiteral("notificationDate"));
    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat(Formats::dateFieldFormat() + QStringLiteral(" HH:mm"));

    auto *heading = new QLabel(tr("A desktop notification reminds you of this invoice."), this);
    heading->setWordWrap(true);
    auto *form = new QFormLayout;
    form->addRow(tr("Title:"), m_title);
    form->addRow(tr("Subtitle:"), m_subtitle);
    form->addRow(tr("Text:"), m_text);
    form->addRow(tr("Date:"), m_date);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_schedule = buttons->addButton(tr("Schedule"), QDialogButtonBox::AcceptRole);
    m_schedule->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &NotificationSheet::accept);
    // `cancelNotificationSheet:`
    connect(buttons, &QDialogButtonBox::rejected, this, &NotificationSheet::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addLayout(form);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 30);
}

bool NotificationSheet::begin()
{
    NotificationCommands &commands = m_app.notifications();
    if (!commands.openNotificationSheet())
        return false;
    const NotificationCommands::Draft draft = commands.prepareNotification();
    m_title->setText(draft.title);
    m_subtitle->setText(draft.subtitle);
    m_text->setPlainText(draft.text);
    m_date->setDateTime(draft.date.toDateTime().toLocalTime());
    m_text->setFocus();
    open();
    return true;
}

void NotificationSheet::accept()
{
    NotificationCommands::Draft draft;
    draft.title = m_title->text();
    draft.subtitle = m_subtitle->text();
    draft.text = m_text->toPlainText();
    draft.date = Date::fromDateTime(m_date->dateTime());
    if (m_app.notifications().sendNotification(draft))
        return; // the failure was shown; the sheet stays with what was typed
    QDialog::accept();
    Q_EMIT scheduled();
}

} // namespace tabo
