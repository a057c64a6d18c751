#pragma once

#include "base/Error.h"

namespace tabo {

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
    // Saves what changed; when another program changed the same records the
    // person chooses, so a failure has been shown when this returns one.
    virtual Error save() = 0;
    // Takes in what other programs committed to the store meanwhile.
    virtual void syncWithStore() = 0;
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
};

} // namespace tabo
