#pragma once

#include "gui/editor/Popover.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;

namespace tabo {

class AppController;
class HintLabel;
struct ShippingFields;

// The document's shipping line, typed in or taken from remembered ones.
class ShippingPopover : public Popover
{
    Q_OBJECT

public:
    enum Tab { ShippingTab, RememberedTab };

    explicit ShippingPopover(AppController &app, QWidget *parent = nullptr);

    QTabWidget *tabs() const { return m_tabs; }

protected:
    void prepare() override;

private:
    QWidget *createShippingPage();
    QWidget *createRememberedPage();
    void fillRemembered();
    void setFields(const ShippingFields &fields);
    ShippingFields fields() const;
    void confirm();
    void useRemembered();
    void updateEnabled();

    AppController &m_app;
    QTabWidget *m_tabs;
    QCheckBox *m_enabled = nullptr;
    QLineEdit *m_title = nullptr;
    QCheckBox *m_hasSubtitle = nullptr;
    QLineEdit *m_subtitle = nullptr;
    QLineEdit *m_amount = nullptr;
    QCheckBox *m_tax[3] = {};
    QLineEdit *m_note = nullptr;
    HintLabel *m_hint = nullptr;
    QTreeWidget *m_remembered = nullptr;
    QPushButton *m_use = nullptr;
};

} // namespace tabo
