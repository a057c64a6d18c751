#include "gui/windows/LetterSheet.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/windows/PreviewWindow.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

LetterSheet::LetterSheet(AppController &app, PreviewWindow *preview, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_preview(preview)
    , m_heading(new QLabel(this))
    , m_titleField(new QLineEdit(this))
    , m_conditions(textField("letterConditions"))
    , m_misc(textField("letterMisc"))
    , m_footer(textField("letterFooter"))
{
    setObjectName(QStringLiteral("letterSheet"));
    setWindowModality(Qt::WindowModal);
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_heading->setObjectName(QStringLiteral("sheetLabel"));
    m_titleField->setObjectName(QStringLiteral("letterTitle"));

    auto *form = new QFormLayout;
    form->addRow(tr("Title:"), m_titleField);
    form->addRow(tr("Conditions:"), m_conditions);
    form->addRow(tr("Miscellaneous:"), m_misc);
    form->addRow(tr("Footer:"), m_footer);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_generate = buttons->addButton(tr("Generate"), QDialogButtonBox::AcceptRole);
    m_generate->setObjectName(QStringLiteral("letterGenerate"));
    m_generate->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addLayout(form);
    layout->addWidget(buttons);
    ScreenFit::resize(this, QSize(560, 480));

    connect(buttons, &QDialogButtonBox::accepted, this, &LetterSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LetterSheet::reject);
}

QPlainTextEdit *LetterSheet::textField(const char *name)
{
    auto *field = new QPlainTextEdit(this);
    field->setObjectName(QLatin1String(name));
    field->setTabChangesFocus(true);
    field->setMinimumHeight(72);
    return field;
}

void LetterSheet::begin(Mode mode)
{
    m_mode = mode;
    // The letter replaces whatever the preview shows.
    if (m_preview)
        m_preview->close();
    const OutputCommands &outputs = m_app.outputs();
    const LetterTexts texts = mode == Mode::Reminder ? outputs.openReminderSheet() : outputs.openSlipSheet();
    const QString heading = mode == Mode::Reminder ? tr("Payment Reminder") : tr("Delivery Slip");
    m_heading->setText(heading);
    setWindowTitle(heading);
    m_titleField->setText(texts.title);
    m_conditions->setPlainText(texts.conditions);
    m_misc->setPlainText(texts.misc);
    m_footer->setPlainText(texts.footer);
    m_titleField->setFocus();
    open();
}

LetterTexts LetterSheet::texts() const
{
    return { m_titleField->text(), m_conditions->toPlainText(), m_misc->toPlainText(), m_footer->toPlainText() };
}

void LetterSheet::accept()
{
    QDialog::accept();
    const LetterTexts letter = texts();
    OutputCommands &outputs = m_app.outputs();
    const bool reminder = m_mode == Mode::Reminder;
    auto start = [&outputs, &letter, reminder] {
        if (!outputs.checkDesignsAvailable())
            return false;
        if (reminder)
            outputs.generateReminder(letter);
        else
            outputs.generateSlip(letter);
        return true;
    };
    if (m_preview)
        m_preview->showRendering(start);
    else
        start();
}

} // namespace tabo
