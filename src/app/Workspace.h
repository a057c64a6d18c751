#pragma once

#include "base/Error.h"
#include "prefs/Preferences.h"

#include <QString>
#include <QVariant>

namespace tabo {

class DocumentList;
class Record;
class Store;

// The open store as commands use it. The controller opens it on first use
// (after the first-start assistant and the upgrade prompt), so a command
// asks for it each time instead of keeping it.
class StoreAccess
{
public:
    virtual ~StoreAccess() = default;
    // nullptr when there is none; the reason has been shown once.
    virtual Store *store() = 0;
    // Without opening it: whether there is one to save or close.
    virtual bool hasStore() const = 0;
    // Saves what changed; when another program changed the same records the
    // person chooses, so a failure has been shown when this returns one.
    virtual Error save() = 0;
    // Takes in what other programs committed to the store meanwhile.
    virtual void syncWithStore() = 0;
    // For the restores: closed (saving first) so the file can be replaced,
    // and opened again; false when it cannot be opened (shown).
    virtual Error closeStore() = 0;
    virtual bool reopenStore() = 0;
};

// The document the window works on, and the change observer every edit of a
// document ends in (recalculate, summary pass, list order, save, views).
class CurrentDocument
{
public:
    virtual ~CurrentDocument() = default;
    virtual Record *currentInvoice() const = 0;
    virtual void setCurrentInvoice(Record *document) = 0;
    virtual void documentChanged(Record *document) = 0;
    // A document a command made: into the list, the filter reset, selected.
    virtual void documentCreated(Record *document) = 0;
    // The document's figures, computed anew from its lines.
    virtual void calculateInvoice(Record *document) = 0;
    // The editor's way to change one attribute (asks about a due date before
    // the document's own); false when the person kept the old value.
    virtual bool setDocumentValue(Record *document, int attr, const QVariant &value,
                                  const QVariant &startedFrom = {}) = 0;
};

// The document list the window shows, and the summary figures over it that
// numbering and reports read.
class ListedDocuments
{
public:
    virtual ~ListedDocuments() = default;
    virtual DocumentList &documentList() = 0;
    // The summary pass over every document.
    virtual void calculateDatabase() = 0;
    virtual void setFilterTag(unsigned tag) = 0;
    // The list down to one invoice, its row selected.
    virtual void filterForInvoice(const QString &uniqueID) = 0;
    virtual void documentRemoved(Record *document) = 0;
    // Read anew from the store after a restore replaced its documents.
    virtual void reloadList() = 0;
    // Documents a command added to documentList() itself: sorted in and shown.
    virtual void documentsAdded() = 0;
};

// Numbers for new documents. A number is given at once and computed again
// inside the save that writes it, since other programs may have numbered
// documents meanwhile.
class DocumentNumbers
{
public:
    // A converted quote is in the count already; the others are not.
    enum class Kind { Invoice, Quote, ConvertedInvoice };
    virtual ~DocumentNumbers() = default;
    virtual QString nextNumber(Kind kind) const = 0;
    virtual void numberInSave(Record *document, Kind kind) = 0;
    // Inside a save's callback, with the write lock held: the documents
    // waiting for numbers get them now, in the order they were made.
    virtual void numberPendingNow() = 0;
    // After a deletion, so that the deleted number is not given again.
    virtual Error raiseNumberCounter(Preferences::Key counter) = 0;
};

// The files the commands write beside the store, settled at start-up.
class WorkingFiles
{
public:
    virtual ~WorkingFiles() = default;
    virtual QString storeFilePath() const = 0;
    // The automatic backup's file; its name is settled on first use.
    virtual QString automaticBackupFile() = 0;
    // The working PDF of every rendering, and the e-mail attachment.
    virtual QString pdfPath() const = 0;
    virtual QString pdfEmailPath() const = 0;
};

} // namespace tabo
