#pragma once

#include "base/Result.h"

#include <QString>
#include <QVariantMap>

namespace tabo {

class CurrentDocument;
class DocumentList;
class Interaction;
class Preferences;
class StoreAccess;
class Record;

// Single documents, collections and dumps written from and read into the
// store: the File menu's export and import commands. Panels and the import
// warning go through the controller's Interaction.
class FileCommands
{
public:
    FileCommands(StoreAccess &store, CurrentDocument &current, const DocumentList &list, Preferences &prefs,
                 Interaction &ui)
        : m_store(store)
        , m_current(current)
        , m_list(list)
        , m_prefs(prefs)
        , m_ui(ui)
    {
    }

    // The export sheet's document export (kind 3) by `exportFormat`: 0 a
    // keyed archive "tabo" {"taboDic": …}, 1 an XML property list "xml", any
    // other value writes nothing. False when nothing was written.
    bool exportInvoice(int exportFormat);
    // Writes the current document to `path` without a panel (the command line).
    Error writeInvoiceFile(const Record &invoice, int exportFormat, const QString &path);

    bool exportItems();        // the list's arranged documents, XML
    bool exportTaboDataXML();  // every document, XML
    bool exportAsInvoiceFile(); // "invdump" keyed archive with six lists
    Error writeItemsXml(bool arrangedOnly, const QString &path);
    Error writeInvoiceDump(const QString &path);

    // importInvoice: the warning, `given` or the open panel, the new document (selected,
    // saved). nullptr when cancelled or when the file holds no document (then
    // with a message).
    Record *importInvoice(const QString &given = {});
    Result<Record *> importInvoiceFile(const QString &path);

private:
    StoreAccess &m_store;
    CurrentDocument &m_current;
    const DocumentList &m_list;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
