#include "gui/main/FilterPopover.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tabo {

QStringList FilterPopover::choiceLabels()
{
    return {tr("All documents"), tr("Sent and open"), tr("Overdue and partly paid"), tr("Paid"), tr("Quotes"),
            tr("Last 12 hours"), tr("Last 3.5 days"), tr("Last 15.5 days"), tr("Last 182.5 days")};
}

FilterPopover::FilterPopover(QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_choices(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("filterPopover"));
    setFrameShape(QFrame::StyledPanel);
    // A click on the filter button while the popover is open only closes it;
    // replayed, the same click would open it again at once.
    setAttribute(Qt::WA_NoMouseReplay);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 8, 6, 8);
    layout->setSpacing(1);
    auto *heading = new QLabel(tr("Show"), this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setContentsMargins(8, 0, 8, 4);
    layout->addWidget(heading);

    // In tag order: the tag of a choice is its position.
    const QStringList labels = choiceLabels();
    for (int tag = 0; tag < labels.size(); ++tag) {
        auto *choice = new QPushButton(labels.at(tag), this);
        choice->setObjectName(QStringLiteral("filterChoice%1").arg(tag));
        choice->setCheckable(true);
        choice->setFlat(true);
        choice->setFocusPolicy(Qt::TabFocus);
        choice->setStyleSheet(QStringLiteral("QPushButton { text-align: left; padding: 4px 12px; }"));
        m_choices->addButton(choice, tag);
        layout->addWidget(choice);
        if (tag == 0 || tag == 4)
            layout->addSpacing(6);
    }
    connect(m_choices, &QButtonGroup::idClicked, this, [this](int tag) {
        hide();
        Q_EMIT filterChosen(unsigned(tag));
    });
}

void FilterPopover::popup(QWidget *anchor, unsigned tag)
{
    if (QAbstractButton *choice = m_choices->button(int(tag)))
        choice->setChecked(true);
    adjustSize();
    QPoint pos = anchor->mapToGlobal(QPoint(anchor->width() - width(), anchor->height()));
    if (const QScreen *screen = anchor->screen()) {
        const QRect area = screen->availableGeometry();
        pos.setX(qBound(area.left(), pos.x(), area.right() - width()));
    }
    move(pos);
    show();
    if (QAbstractButton *choice = m_choices->button(int(tag)))
        choice->setFocus();
}

} // namespace tabo
