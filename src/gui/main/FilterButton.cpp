#include "gui/main/FilterButton.h"

#include "app/AppController.h"
#include "gui/main/FilterPopover.h"
#include "gui/widgets/Icons.h"

namespace tabo {

FilterButton::FilterButton(AppController &app, QWidget *parent)
    : QToolButton(parent)
    , m_app(app)
    , m_popover(new FilterPopover(this))
    , m_plain(Icons::torch(false))
    , m_glow(Icons::torch(true))
{
    setObjectName(QStringLiteral("filterButton"));
    setText(tr("Filter"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(this, &QToolButton::clicked, this, &FilterButton::clickedFilter);
    connect(m_popover, &FilterPopover::filterChosen, &m_app, &AppController::selectFilterAction);
    connect(&m_app, &AppController::filterImageChanged, this, &FilterButton::selectFilter);
    selectFilter(m_app.filterGlows());
}

void FilterButton::clickedFilter()
{
    if (m_popover->isVisible()) {
        m_popover->hide();
        return;
    }
    if (m_app.openFilterPopover())
        m_popover->popup(this, m_app.filterTag());
}

void FilterButton::selectFilter(bool glowing)
{
    m_glowing = glowing;
    setIcon(glowing ? m_glow : m_plain);
    // The filter in force is named, so a short list never looks like lost documents.
    const QStringList labels = FilterPopover::choiceLabels();
    const unsigned tag = m_app.filterTag();
    const QString name = tag == DocumentList::kInvoiceFilterTag ? tr("One Invoice") : labels.value(int(tag < 9 ? tag : 1));
    setText(glowing ? tr("Filter: %1").arg(name) : tr("Filter"));
    setToolTip(glowing ? tr("A filter is on — click to show all documents") : tr("Filter the documents"));
}

} // namespace tabo
