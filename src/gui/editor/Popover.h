#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>

namespace tabo {

// A transient panel under the control that opened it; a click anywhere else
// closes it. Every command that opens a popover closes it when it is shown.
class Popover : public QFrame
{
    Q_OBJECT

public:
    explicit Popover(QWidget *parent = nullptr);

    // Opens the popover under `anchor` (filled afresh by prepare()), or
    // closes it when it is already shown. True when it opened.
    bool toggle(QWidget *anchor);

protected:
    virtual void prepare() { }
    // A popup holds the mouse and keyboard, so a dialog could not be used
    // while it is shown: the popover steps aside for `dialog` and comes back.
    void runHidden(const std::function<void()> &dialog);
    void placeUnder(QWidget *anchor);

private:
    QPointer<QWidget> m_anchor;
};

} // namespace tabo
