#pragma once

#include <QPlainTextEdit>

namespace tabo {

// A multi-line text field that, like a line edit, says when the person is
// done with it: on leaving it after a change.
class PlainTextField : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit PlainTextField(QWidget *parent = nullptr);

    // How many lines the field asks room for; layouts may give it more.
    void setVisibleLines(int lines);
    QSize sizeHint() const override;

    // Replaces the text only when it differs, so that the cursor stays put.
    void setTextIfChanged(const QString &text);
    bool isModified() const;
    void setModified(bool modified);

Q_SIGNALS:
    void editingFinished();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    // Qt lays out a long line without a break opportunity in quadratic time
    // (a pasted megabyte would take minutes): such text wraps anywhere.
    void wrapFor(const QString &text);

    int m_lines = 0;
};

} // namespace tabo
