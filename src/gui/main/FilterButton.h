#pragma once

#include <QIcon>
#include <QToolButton>

namespace tabo {

class AppController;
class FilterPopover;

// The toolbar's filter button. Plain, it opens the filter popover; while a
// filter is on it glows, and a click clears the filter instead.
class FilterButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(bool glowing READ isGlowing)

public:
    explicit FilterButton(AppController &app, QWidget *parent = nullptr);

    bool isGlowing() const { return m_glowing; }
    FilterPopover *popover() const { return m_popover; }

private:
    void clickedFilter();
    void selectFilter(bool glowing);

    AppController &m_app;
    FilterPopover *m_popover;
    QIcon m_plain;
    QIcon m_glow;
    bool m_glowing = false;
};

} // namespace tabo
