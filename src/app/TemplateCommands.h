#pragma once

#include <QList>
#include <QString>

namespace tabo {

class CurrentDocument;
class Interaction;
class Preferences;
class StoreAccess;
class UndoHistory;
class Record;

// Saved invoice templates: a reusable copy of chosen groups of a document's
// fields and clones of its lines. A template's name is kept in its
// `uniqueID`.
class TemplateCommands
{
public:
    TemplateCommands(StoreAccess &store, CurrentDocument &current, UndoHistory &undo, Preferences &prefs,
                     Interaction &ui)
        : m_store(store)
        , m_current(current)
        , m_undo(undo)
        , m_prefs(prefs)
        , m_ui(ui)
    {
    }

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
    StoreAccess &m_store;
    CurrentDocument &m_current;
    UndoHistory &m_undo;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
