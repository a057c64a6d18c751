#pragma once

#include "gui/editor/Popover.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;

namespace tabo {

class AppController;
class HintLabel;
class Record;
struct ItemFields;

// New lines: typed into the entry page or taken from the article catalogue.
class ItemPopover : public Popover
{
    Q_OBJECT

public:
    enum Tab { EntryTab, CatalogueTab };

    explicit ItemPopover(AppController &app, QWidget *parent = nullptr);

    QTabWidget *tabs() const { return m_tabs; }

Q_SIGNALS:
    void itemAdded(tabo::Record *item);

protected:
    void prepare() override;

private:
    QWidget *createEntryPage();
    QWidget *createCataloguePage();
    void fillCatalogue();
    void setFields(const ItemFields &fields);
    ItemFields fields() const;
    void addItem();
    void useRecentItem();

    AppController &m_app;
    QTabWidget *m_tabs;
    QLineEdit *m_title = nullptr;
    QLineEdit *m_subtitle = nullptr;
    QLineEdit *m_unit = nullptr;
    QLineEdit *m_unitCode = nullptr;
    QLineEdit *m_sku = nullptr;
    QLineEdit *m_note = nullptr;
    QLineEdit *m_price = nullptr;
    QLineEdit *m_quantity = nullptr;
    QCheckBox *m_tax[3] = {};
    QFormLayout *m_form = nullptr;
    int m_taxRow = 0;
    HintLabel *m_hint = nullptr;
    QTreeWidget *m_catalogue = nullptr;
    QPushButton *m_use = nullptr;
};

} // namespace tabo
