#pragma once

#include "render/PageRenderer.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tabo {

class AppController;
class PreviewWindow;

// The payment reminder and the delivery slip: the same document printed with
// other texts. The sheet offers the four texts from the preferences for this
// one letter; Generate shows the letter in the preview window.
class LetterSheet : public QDialog
{
    Q_OBJECT

public:
    enum class Mode { Reminder, Slip };

    LetterSheet(AppController &app, PreviewWindow *preview, QWidget *parent = nullptr);

    // `openReminderSheet` / `openSlipSheet`: closes an open preview and
    // shows the sheet filled from the preferences.
    void begin(Mode mode);
    Mode mode() const { return m_mode; }

    LetterTexts texts() const;
    QLineEdit *titleField() const { return m_titleField; }
    QPlainTextEdit *conditionsField() const { return m_conditions; }
    QPlainTextEdit *miscField() const { return m_misc; }
    QPlainTextEdit *footerField() const { return m_footer; }
    QPushButton *generateButton() const { return m_generate; }

    // `generateReminder` / `generateSlip`
    void accept() override;

private:
    QPlainTextEdit *textField(const char *name);

    AppController &m_app;
    PreviewWindow *m_preview;
    Mode m_mode = Mode::Reminder;
    QLabel *m_heading;
    QLineEdit *m_titleField;
    QPlainTextEdit *m_conditions;
    QPlainTextEdit *m_misc;
    QPlainTextEdit *m_footer;
    QPushButton *m_generate;
};

} // namespace tabo
