#pragma once

#include <QWidget>

class QPushButton;
class QTableView;

namespace tabo {

class AppController;
class DiscountPopover;
class HintLabel;
class ItemPopover;
class ItemTableModel;
class Record;
class ShippingPopover;
class TemplatePopover;
class TotalsPanel;

// The document's lines with their commands, and its totals under them.
class ItemsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ItemsPage(AppController &app, QWidget *parent = nullptr);

    void showDocument(Record *document);
    void refresh();

    // Each opens its popover at its button, or closes it when it is shown.
    void toggleItemPopover();
    void toggleShippingPopover();
    void toggleDiscountPopover();
    void toggleTemplatePopover();
    // Asks first; the controller refuses for a sent document.
    void deleteSelectedItem();

    Record *selectedItem() const;
    QTableView *table() const { return m_table; }
    ItemTableModel *model() const { return m_model; }
    TotalsPanel *totals() const { return m_totals; }
    ItemPopover *itemPopover() const { return m_itemPopover; }
    ShippingPopover *shippingPopover() const { return m_shippingPopover; }
    DiscountPopover *discountPopover() const { return m_discountPopover; }
    TemplatePopover *templatePopover() const { return m_templatePopover; }

Q_SIGNALS:
    void selectedItemChanged();

private:
    QPushButton *addButton(const QString &text, const char *name);
    void setupTable();
    void selectItem(Record *item);
    void updateButtons();

    AppController &m_app;
    Record *m_doc = nullptr;
    ItemTableModel *m_model;
    QTableView *m_table;
    HintLabel *m_hint;
    TotalsPanel *m_totals;
    QPushButton *m_add;
    QPushButton *m_delete;
    QPushButton *m_shipping;
    QPushButton *m_discount;
    QPushButton *m_templates;
    ItemPopover *m_itemPopover;
    ShippingPopover *m_shippingPopover;
    DiscountPopover *m_discountPopover;
    TemplatePopover *m_templatePopover;
    Record *m_keepSelected = nullptr; // across a reset of the lines
};

} // namespace tabo
