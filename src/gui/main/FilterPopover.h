#pragma once

#include <QStringList>
#include <QFrame>

class QButtonGroup;

namespace tabo {

// The filter choices under the filter button: a transient popup that closes
// when the person clicks anywhere else.
class FilterPopover : public QFrame
{
    Q_OBJECT

public:
    // The choices, in the order of the filter tags.
    static QStringList choiceLabels();
    explicit FilterPopover(QWidget *parent = nullptr);

    // Shows the popover below `anchor` with the choice for `tag` marked.
    void popup(QWidget *anchor, unsigned tag);

Q_SIGNALS:
    void filterChosen(unsigned tag);

private:
    QButtonGroup *m_choices;
};

} // namespace tabo
