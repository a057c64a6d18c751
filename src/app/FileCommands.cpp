#include "app/FileCommands.h"

#include "app/Interaction.h"
#include "app/Workspace.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "store/DesignFile.h"
#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(FileCommands)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;
namespace OD = ObjectDictionary;

const QString kTaboDic = QStringLiteral("taboDic");
QString kDatabaseTitle()
{
    return Tr::tr("Export Tabo Database As XML");
}

Error writeArchive(const QString &path, const QVariantMap &root)
{
    const Result<QByteArray> data = KeyedArchive::archive(root);
    if (!data)
        return Error::file(Tr::tr("The archive could not be built: %1").arg(data.error().text));
    return ProtectedFiles::writeAtomically(path, data.value());
}

const Error kNoDatabase = Error::file(Tr::tr("There is no database."));

// Each record is its own top-level walk, so each carries its own copies of
// whatever it shares with the others.
QVariantList dictionaries(Store &store, const QList<Record *> &records)
{
    store.loadFully(records);
    QVariantList list;
    list.reserve(records.size());
    for (const Record *r : records)
        list.append(OD::toDictionary(*r));
    return list;
}

} // namespace

bool FileCommands::exportInvoice(int exportFormat)
{
    const Record *invoice = m_current.currentInvoice();
    if (!invoice || (exportFormat != 0 && exportFormat != 1))
        return false;
    Interaction::FileRequest request;
    request.title = exportFormat == 0 ? Tr::tr("Export As Tabo Document") : Tr::tr("Export As XML Document");
    request.extensions = {exportFormat == 0 ? QStringLiteral("tabo") : QStringLiteral("xml")};
    // A slash cannot stand in a file name here; numbers such as "2026/17" are common.
    request.suggestedName = QStringLiteral("%1 | %2 | %3")
                                .arg(m_prefs.string(P::prefsName), invoice->text(Invoice::title),
                                     invoice->text(Invoice::number))
                                .replace(QLatin1Char('/'), QLatin1Char('-'));
    request.canCreateFolders = true;
    const QString path = m_ui.saveTarget(request);
    if (path.isEmpty())
        return false;
    return !writeInvoiceFile(*invoice, exportFormat, path);
}

Error FileCommands::writeInvoiceFile(const Record &invoice, int exportFormat, const QString &path)
{
    const QVariantMap dictionary = OD::toDictionary(invoice);
    if (exportFormat == 0)
        return writeArchive(path, {{kTaboDic, dictionary}});
    if (exportFormat == 1)
        return plist::writeFile(path, dictionary, plist::Format::Xml);
    return Error { Error::Tabo, 1, Tr::tr("Unknown export format %1.").arg(exportFormat), {} };
}

bool FileCommands::exportItems()
{
    Interaction::FileRequest request;
    request.title = kDatabaseTitle();
    request.extensions = {QStringLiteral("xml")};
    request.canCreateFolders = true;
    const QString path = m_ui.saveTarget(request);
    return !path.isEmpty() && !writeItemsXml(true, path);
}

bool FileCommands::exportTaboDataXML()
{
    Interaction::FileRequest request;
    request.title = kDatabaseTitle();
    request.extensions = {QStringLiteral("xml")};
    request.suggestedName = Tr::tr("Tabo Database");
    request.canCreateFolders = true;
    const QString path = m_ui.saveTarget(request);
    return !path.isEmpty() && !writeItemsXml(false, path);
}

bool FileCommands::exportAsInvoiceFile()
{
    m_store.save();
    Interaction::FileRequest request;
    request.title = Tr::tr("Export As Invoices Dump");
    request.extensions = {QStringLiteral("invdump")};
    request.suggestedName = Tr::tr("Invoices Dump");
    request.canCreateFolders = true;
    const QString path = m_ui.saveTarget(request);
    return !path.isEmpty() && !writeInvoiceDump(path);
}

Error FileCommands::writeItemsXml(bool arrangedOnly, const QString &path)
{
    Store *store = m_store.store();
    if (!store)
        return kNoDatabase;
    const QList<Record *> &records = arrangedOnly ? m_list.shown() : store->all(EntityId::Invoice);
    return plist::writeFile(path, dictionaries(*store, records), plist::Format::Xml);
}

Error FileCommands::writeInvoiceDump(const QString &path)
{
    Store *store = m_store.store();
    if (!store)
        return kNoDatabase;
    const QVariantMap root = {
        {QStringLiteral("invoices"), dictionaries(*store, store->all(EntityId::Invoice))},
        {QStringLiteral("items"), dictionaries(*store, store->all(EntityId::RecentItem))},
        {QStringLiteral("designs"), dictionaries(*store, store->all(EntityId::Design))},
        {QStringLiteral("addresses"), dictionaries(*store, store->all(EntityId::Address))},
        {QStringLiteral("shippings"), dictionaries(*store, store->all(EntityId::RecentShipping))},
        {QStringLiteral("templates"), dictionaries(*store, store->all(EntityId::Template))},
    };
    return writeArchive(path, root);
}

Record *FileCommands::importInvoice(const QString &given)
{
    Interaction &ui = m_ui;
    const int answer = ui.alert(Tr::tr("Warning!"),
        Tr::tr("The integrity of your data is your responsibility, and yours alone. Tabo is just a stupid App "
               "and by design it can't know or care about duplicate invoices, messed up numbers, or if you're "
               "having a bad hair day. So please, do yourself a favor and check what you are doing here. Do "
               "you still want to import the invoice?"),
        { Tr::tr("Import…"), Tr::tr("Cancel") });
    if (answer != 0)
        return nullptr;
    QString path = given;
    if (path.isEmpty()) {
        Interaction::FileRequest request;
        request.title = Tr::tr("Import Tabo Document");
        request.extensions = {QStringLiteral("tabo")};
        path = ui.openFile(request);
    }
    if (path.isEmpty())
        return nullptr;
    Record *invoice = importInvoiceFile(path).value();
    if (!invoice && m_store.store())
        ui.alert(Tr::tr("Error!"), Tr::tr("The file “%1” is not a Tabo document.").arg(QFileInfo(path).fileName()),
            { Tr::tr("OK") });
    return invoice;
}

Result<Record *> FileCommands::importInvoiceFile(const QString &path)
{
    Store *store = m_store.store();
    if (!store)
        return kNoDatabase;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("The file “%1” could not be read: %2").arg(path, file.errorString()));
    Result<QVariantMap> archived = archivedDictionary(file.readAll(), kTaboDic);
    if (!archived)
        return archived.error();
    QVariantMap &dictionary = archived.value();
    dictionary.insert(OD::kClassKey, QStringLiteral("Invoice"));
    m_store.syncWithStore();
    Record *invoice = OD::createManagedObjectFromDictionary(dictionary, *store);
    // Importing the same file twice must not make one ID name two documents.
    ensureOwnUniqueId(*invoice, Invoice::uniqueID, m_list.all());
    m_current.documentCreated(invoice);
    return invoice;
}

} // namespace tabo
