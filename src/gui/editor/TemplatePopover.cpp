#include "gui/editor/TemplatePopover.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "app/TemplateCommands.h"
#include "domain/Record.h"
#include "gui/widgets/HintLabel.h"
#include "gui/widgets/PlainTextField.h"
#include "prefs/Preferences.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tabo {

namespace {
using P = Preferences;
}

TemplatePopover::TemplatePopover(AppController &app, QWidget *parent)
    : Popover(parent)
    , m_app(app)
    , m_tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("templatePopover"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(createSavePage(), tr("New Template"));
    m_tabs->addTab(createTemplatesPage(), tr("Templates"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 10);
    layout->addWidget(m_tabs);
}

QWidget *TemplatePopover::createSavePage()
{
    auto *page = new QWidget(this);
    auto *form = new QFormLayout(page);
    m_name = new QLineEdit(page);
    m_name->setObjectName(QStringLiteral("templateName"));
    m_name->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 20);
    m_notes = new PlainTextField(page);
    m_notes->setObjectName(QStringLiteral("templateNotes"));
    m_notes->setVisibleLines(3);
    form->addRow(tr("Name:"), m_name);
    form->addRow(tr("Notes:"), m_notes);

    // The choices are preferences: the next template takes the same groups.
    const std::pair<P::Key, QString> groups[] = { { P::templateIncludeClient, tr("Client") },
        { P::templateIncludeTitle, tr("Heading and subject") }, { P::templateIncludeItems, tr("Items") },
        { P::templateIncludeShipping, tr("Shipping") }, { P::templateIncludeDiscount, tr("Discount") } };
    auto *include = new QVBoxLayout;
    for (const auto &[key, label] : groups) {
        auto *box = new QCheckBox(label, page);
        box->setObjectName(Preferences::info(key).name);
        box->setChecked(m_app.prefs().boolean(key));
        connect(box, &QCheckBox::toggled, this, [this, key = key](bool on) { m_app.prefs().setBool(key, on); });
        include->addWidget(box);
    }
    form->addRow(tr("Include:"), include);
    m_hint = new HintLabel(page);
    form->addRow(m_hint);
    auto *save = new QPushButton(tr("Save Template"), page);
    save->setObjectName(QStringLiteral("saveTemplateButton"));
    save->setDefault(true);
    form->addRow(QString(), save);
    connect(save, &QPushButton::clicked, this, &TemplatePopover::saveTemplate);
    connect(m_name, &QLineEdit::returnPressed, this, &TemplatePopover::saveTemplate);
    return page;
}

QWidget *TemplatePopover::createTemplatesPage()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    m_templates = new QTreeWidget(page);
    m_templates->setObjectName(QStringLiteral("templateList"));
    m_templates->setAccessibleName(tr("Templates"));
    m_templates->setRootIsDecorated(false);
    m_templates->setHeaderLabels({ tr("Name"), tr("Notes") });
    m_templates->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_templates->setMinimumHeight(fontMetrics().height() * 10);
    layout->addWidget(m_templates);
    m_apply = new QPushButton(tr("Apply"), page);
    m_apply->setObjectName(QStringLiteral("applyTemplateButton"));
    m_delete = new QPushButton(tr("Delete"), page);
    m_delete->setObjectName(QStringLiteral("deleteTemplateButton"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_delete);
    buttons->addStretch(1);
    buttons->addWidget(m_apply);
    layout->addLayout(buttons);
    connect(m_apply, &QPushButton::clicked, this, &TemplatePopover::applyTemplate);
    connect(m_templates, &QTreeWidget::itemDoubleClicked, this, &TemplatePopover::applyTemplate);
    connect(m_delete, &QPushButton::clicked, this, &TemplatePopover::deleteTemplate);
    return page;
}

void TemplatePopover::prepare()
{
    m_name->clear();
    const Record *doc = m_app.currentInvoice();
    const QString notes = doc ? doc->text(Invoice::notes) : QString();
    m_notes->setPlainText(notes);
    m_hint->clearMessage();
    for (QCheckBox *box : findChildren<QCheckBox *>()) {
        if (const int key = Preferences::keyIndex(box->objectName()); key >= 0) {
            const QSignalBlocker quiet(box);
            box->setChecked(m_app.prefs().boolean(P::Key(key)));
        }
    }
    fillTemplates();
    const int tab = m_app.prefs().boolean(P::alwaysShowRecentTemplates) ? TemplatesTab : SaveTab;
    m_app.prefs().setInteger(P::templatesTabViewIndex, tab);
    m_tabs->setCurrentIndex(tab);
    if (tab == SaveTab)
        m_name->setFocus();
}

void TemplatePopover::fillTemplates()
{
    m_templates->clear();
    for (Record *t : m_app.templates().templates()) {
        auto *row = new QTreeWidgetItem(m_templates,
            { t->text(Template::uniqueID), t->text(Template::notes).section(QLatin1Char('\n'), 0, 0) });
        row->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void *>(t)));
    }
    m_templates->resizeColumnToContents(0);
    if (m_templates->topLevelItemCount() > 0)
        m_templates->setCurrentItem(m_templates->topLevelItem(0));
    const bool any = m_templates->topLevelItemCount() > 0;
    m_apply->setEnabled(any);
    m_delete->setEnabled(any);
}

Record *TemplatePopover::selectedTemplate() const
{
    const QTreeWidgetItem *row = m_templates->currentItem();
    return row ? static_cast<Record *>(row->data(0, Qt::UserRole).value<void *>()) : nullptr;
}

void TemplatePopover::saveTemplate()
{
    const QString name = m_name->text().trimmed();
    // The name is how the template is found again.
    if (name.isEmpty()) {
        m_hint->showMessage(tr("Please give the template a name."));
        adjustSize();
        return;
    }
    if (!m_app.templates().createNewTemplate(name, m_notes->toPlainText())) {
        m_hint->showMessage(tr("There is no document to save as a template."));
        adjustSize();
        return;
    }
    hide();
}

void TemplatePopover::applyTemplate()
{
    Record *chosen = selectedTemplate();
    if (!chosen)
        return;
    // Closed first: a sent document refuses with an alert.
    hide();
    m_app.templates().selectTemplate(chosen);
}

void TemplatePopover::deleteTemplate()
{
    Record *chosen = selectedTemplate();
    if (!chosen)
        return;
    runHidden([this, chosen] {
        const int answer = m_app.ui().alert(tr("Delete Template"),
            tr("Deleting templates is permanent and cannot be undone. Do you really want to delete the "
               "template “%1”?")
                .arg(chosen->text(Template::uniqueID)),
            { tr("Delete"), tr("Cancel") });
        if (answer == 0) {
            m_app.templates().deleteTemplate(chosen);
            m_app.save();
            fillTemplates();
        }
    });
}

} // namespace tabo
