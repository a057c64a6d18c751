#include "gui/editor/TextsPage.h"

#include "domain/Record.h"
#include "gui/widgets/FieldBinder.h"
#include "gui/widgets/PlainTextField.h"

#include <QGridLayout>
#include <QLabel>

namespace tabo {

TextsPage::TextsPage(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_binder(new FieldBinder(app, this))
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(16, 14, 16, 14);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(4);
    const std::pair<int, QString> blocks[] = { { Invoice::notes, tr("Notes") },
        { Invoice::conditions, tr("Conditions") }, { Invoice::footer, tr("Footer") },
        { Invoice::misc1, tr("Extra text") }, { Invoice::invoiceMisc2, tr("Second extra text") } };
    int index = 0;
    for (const auto &[attr, caption] : blocks) {
        const int row = (index / 2) * 2;
        const int column = index % 2;
        auto *edit = new PlainTextField(this);
        edit->setVisibleLines(3);
        m_binder->bindPlainText(edit, attr);
        auto *label = new QLabel(caption + QLatin1Char(':'), this);
        label->setBuddy(edit);
        grid->addWidget(label, row, column);
        grid->addWidget(edit, row + 1, column);
        grid->setRowStretch(row + 1, 1);
        ++index;
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
}

void TextsPage::showDocument(Record *document)
{
    m_binder->load(document);
}

void TextsPage::commitPending()
{
    m_binder->commitPending();
}

} // namespace tabo
