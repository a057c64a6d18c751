#pragma once

#include "gui/editor/Popover.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace tabo {

class AppController;
class HintLabel;
struct DiscountFields;

// The document's discount: a fixed amount or a percentage.
class DiscountPopover : public Popover
{
    Q_OBJECT

public:
    explicit DiscountPopover(AppController &app, QWidget *parent = nullptr);

protected:
    void prepare() override;

private:
    void setFields(const DiscountFields &fields);
    DiscountFields fields() const;
    void confirm();
    void updateEnabled();

    AppController &m_app;
    QCheckBox *m_enabled;
    QRadioButton *m_byAmount;
    QRadioButton *m_byPercent;
    QLineEdit *m_amount;
    QLineEdit *m_percent;
    QLineEdit *m_title;
    QCheckBox *m_hasSubtitle;
    QLineEdit *m_subtitle;
    HintLabel *m_hint;
    int m_otherKind = 1; // a percentage kind read from the document is kept
};

} // namespace tabo
