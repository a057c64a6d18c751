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
class PlainTextField;
class Record;

// Saves the current document as a template, or fills it from a saved one.
class TemplatePopover : public Popover
{
    Q_OBJECT

public:
    enum Tab { SaveTab, TemplatesTab };

    explicit TemplatePopover(AppController &app, QWidget *parent = nullptr);

    QTabWidget *tabs() const { return m_tabs; }

protected:
    void prepare() override;

private:
    QWidget *createSavePage();
    QWidget *createTemplatesPage();
    void fillTemplates();
    Record *selectedTemplate() const;
    void saveTemplate();
    void applyTemplate();
    void deleteTemplate();

    AppController &m_app;
    QTabWidget *m_tabs;
    QLineEdit *m_name = nullptr;
    PlainTextField *m_notes = nullptr;
    HintLabel *m_hint = nullptr;
    QTreeWidget *m_templates = nullptr;
    QPushButton *m_apply = nullptr;
    QPushButton *m_delete = nullptr;
};

} // namespace tabo
