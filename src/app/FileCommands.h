#pragma once

#include <QString>
#include <QVariantMap>

namespace tabo {

class AppController;
class Record;

// Single documents, collections and dumps written from and read into the
// store: the File menu's export and import commands. Panels and the import
// warning go through the controller's Interaction.
class FileCommands
{
public:
    explicit FileCommands(AppController &app) : m_app(app) {}

    // The export sheet's document export (kind 3) by `exportFormat`: 0 a
    // keyed archive "tabo" {"taboDic": …}, 1 an XML property list "xml", any
    // other value writes nothing. False when nothing was written.
    bool exportInvoice(int exportFormat);
    // Writes the current document to `path` without a panel (the command line).
    bool writeInvoiceFile(const Record &invoice, int exportFormat, const QString &path, QString *error);

    bool exportItems();        // the list's arranged documents, XML
    bool exportTaboDataXML();  // every document, XML
    bool exportAsInvoiceFile(); // "invdump" keyed archive with six lists
    bool writeItemsXml(bool arrangedOnly, const QString &path, QString *error);
    bool writeInvoiceDump(const QString &path, QString *error);

    // importInvoice: the warning, the open panel, the new document (selected,
    // saved). nullptr when cancelled or when the file holds no document (then
    // with a message).
    Record *importInvoice();
    Record *importInvoiceFile(const QString &path, QString *error);

private:
    AppController &m_app;
};

} // namespace tabo
