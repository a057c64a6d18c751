#pragma once

#include <QList>
#include <QString>

namespace tabo {

class AppController;
class Record;

// Saved invoice templates: a reusable copy of chosen groups of a document's
// fields and clones of its lines. A template's name is kept in its
// `uniqueID`.
class TemplateCommands
{
public:
    explicit TemplateCommands(AppController &app) : m_app(app) {}

    // createNewTemplate: saves the current document as a template, taking the
    // groups the `templateInclude...` preferences switch on. nullptr without a
    // current document.
    Record *createNewTemplate(const QString &name, const QString &notes);
    // selectTemplate: fills the current document from the template; refused
    // (false) for a sent document.
    bool selectTemplate(Record *templateRecord);
    void deleteTemplate(Record *templateRecord);

    QList<Record *> templates() const; // sorted by name
    Record *findTemplate(const QString &name) const;

private:
    AppController &m_app;
};

} // namespace tabo
