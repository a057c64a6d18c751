#include "app/DesignLibrary.h"

#include "app/Workspace.h"
#include "app/Interaction.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "store/DesignFile.h"
#include "store/ObjectDictionary.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QtDebug>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DesignLibrary)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;
namespace OD = ObjectDictionary;

const QString kResourceDir = QStringLiteral(":/designs/");
const QString kExtension = QStringLiteral("design");
const QString kFirstDefault = QStringLiteral("Temp001");

QByteArray readResource(const QString &fileName)
{
    QFile file(kResourceDir + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Unable to read the resource %s", qPrintable(fileName));
        return {};
    }
    return file.readAll();
}

bool lessByTitleThenCreation(const Record *a, const Record *b)
{
    const int c = QString::compare(a->text(Design::title), b->text(Design::title), Qt::CaseInsensitive);
    return c != 0 ? c < 0 : a->id() < b->id();
}

Error fileError(int code, const QString &description, const QString &reason)
{
    return Error{Error::Tabo, code, description, reason};
}

} // namespace

DesignLibrary::DesignLibrary(StoreAccess &store, Preferences &prefs, Interaction &ui)
    : m_store(store)
    , m_prefs(prefs)
    , m_ui(ui)
{
}

QList<Record *> DesignLibrary::designs() const
{
    Store *store = m_store.store();
    if (!store)
        return {};
    QList<Record *> list = store->all(EntityId::Design);
    std::stable_sort(list.begin(), list.end(), lessByTitleThenCreation);
    return list;
}

Record *DesignLibrary::currentDesign() const
{
    Store *store = m_store.store();
    if (!store)
        return nullptr;
    // The store's list keeps no promised order; creation order is the id.
    Record *first = nullptr;
    for (Record *design : store->all(EntityId::Design)) {
        if (design->boolean(Design::isDefault) && (!first || design->id() < first->id()))
            first = design;
    }
    return first;
}

QStringList DesignLibrary::firstBuiltInNames()
{
    return {QStringLiteral("Temp001"), QStringLiteral("Temp002"), QStringLiteral("Temp003"),
            QStringLiteral("Temp004"), QStringLiteral("Temp005"), QStringLiteral("Temp006"),
            QStringLiteral("Temp007"), QStringLiteral("Temp008"), QStringLiteral("Temp009"),
            QStringLiteral("Temp11"),  QStringLiteral("Temp12"),  QStringLiteral("Temp13")};
}

Record *DesignLibrary::createDesignFromResource(const QString &name)
{
    Store *store = m_store.store();
    if (!store)
        return nullptr;
    const Result<QVariantMap> dictionary = readDesignFile(readResource(name + QLatin1Char('.') + kExtension));
    if (!dictionary)
        qWarning("Unable to read the built-in design %s: %s", qPrintable(name), qPrintable(dictionary.error().message()));
    // A broken resource still gives its (empty) design, which renders the
    // failure text rather than silently falling back to another design.
    Record *design = dictionary ? OD::createManagedObjectFromDictionary(dictionary.value(), *store) : nullptr;
    return design ? design : store->insert(EntityId::Design);
}

void DesignLibrary::loadTemplates()
{
    if (!m_store.store())
        return;
    for (const QString &name : firstBuiltInNames()) {
        if (Record *design = createDesignFromResource(name))
            design->setBool(Design::isDefault, name == kFirstDefault);
    }
    m_store.save();
}

void DesignLibrary::loadTabo2Template()
{
    qInfo("loadTabo2Template");
    Record *design = createDesignFromResource(QStringLiteral("Temp14"));
    if (!design)
        return;
    // Other defaults stay: the earliest one keeps rendering until the person
    // chooses.
    design->setBool(Design::isDefault, true);
    m_store.save();
}

Record *DesignLibrary::addDesign()
{
    Store *store = m_store.store();
    if (!store)
        return nullptr;
    Record *design = store->insert(EntityId::Design);
    design->setText(Design::uniqueID, newUniqueId());
    design->setText(Design::title, Tr::tr("New Design"));
    design->setText(Design::invoice, defaultResourceText(QStringLiteral("Invoice")));
    design->setText(Design::item, defaultResourceText(QStringLiteral("Item")));
    design->setText(Design::css, defaultResourceText(QStringLiteral("CSS")));
    design->setBool(Design::isDefault, false);
    m_store.save();
    setSelectedDesignIndex(int(designs().indexOf(design)));
    return design;
}

void DesignLibrary::setDesignText(Record *design, int attr, const QString &text)
{
    if (!design || design->isDeleted() || design->text(attr) == text)
        return;
    design->setText(attr, text);
}

bool DesignLibrary::deleteDesign(Record *design)
{
    Store *store = m_store.store();
    if (!store || !design || design->isDeleted())
        return false;
    const int answer = m_ui.alert(Tr::tr("Delete Design"),
        Tr::tr("Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?"),
        { Tr::tr("Delete"), Tr::tr("Cancel") });
    if (answer != 0)
        return false;
    const int index = int(designs().indexOf(design));
    store->remove(design);
    m_store.save();
    // The list selects the row that moved into the deleted one's place.
    const int remaining = int(designs().size());
    setSelectedDesignIndex(std::max(0, std::min(index, remaining - 1)));
    return true;
}

void DesignLibrary::makeDefaultDesign(Record *design)
{
    if (!design || design->isDeleted())
        return;
    for (Record *other : designs())
        other->setBool(Design::isDefault, false);
    design->setBool(Design::isDefault, true);
    m_store.save();
}

Record *DesignLibrary::importDesign(const QString &given)
{
    if (!m_store.store())
        return nullptr; // the missing store has been reported already
    QString path = given;
    if (path.isEmpty()) {
        Interaction::FileRequest request;
        request.title = Tr::tr("Import Tabo Design");
        request.extensions = {kExtension};
        request.chooseFolders = false;
        path = m_ui.openFile(request);
    }
    if (path.isEmpty())
        return nullptr;
    const Result<Record *> design = importDesignFile(path);
    if (!design)
        m_ui.presentError(fileError(259,
            Tr::tr("The design “%1” could not be imported.").arg(QFileInfo(path).fileName()), design.error().text));
    return design.value();
}

Result<Record *> DesignLibrary::importDesignFile(const QString &path)
{
    Store *store = m_store.store();
    if (!store)
        return Error::file(Tr::tr("There is no store to import into."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(file.errorString());
    const Result<QVariantMap> dictionary = readDesignFile(file.readAll());
    // Nothing is created from a file that is not a design: an empty design
    // in the list would only puzzle the person.
    Record *design = dictionary ? OD::createManagedObjectFromDictionary(dictionary.value(), *store) : nullptr;
    if (!design)
        return Error::file(dictionary ? Tr::tr("The file is not a Tabo design.")
                                      : Tr::tr("The file is not a Tabo design. %1").arg(dictionary.error().message()));
    design->setBool(Design::isDefault, false);
    // The same file imported twice gets a second ID, so an ID names one design.
    ensureOwnUniqueId(*design, Design::uniqueID, designs());
    m_store.save();
    setSelectedDesignIndex(int(designs().indexOf(design)));
    return design;
}

bool DesignLibrary::exportDesign(const Record *design)
{
    if (!design)
        return false;
    Interaction::FileRequest request;
    request.title = Tr::tr("Export Tabo Design");
    request.extensions = {kExtension};
    request.canCreateFolders = true;
    // A slash in a title cannot be part of a file name.
    request.suggestedName = design->text(Design::title).replace(QLatin1Char('/'), QLatin1Char('-'));
    QString path = m_ui.saveTarget(request);
    if (path.isEmpty())
        return false;
    if (!path.endsWith(QLatin1Char('.') + kExtension, Qt::CaseInsensitive))
        path += QLatin1Char('.') + kExtension;
    if (const Error e = exportDesignFile(design, path)) {
        m_ui.presentError(fileError(
            261, Tr::tr("The design could not be exported to “%1”.").arg(QFileInfo(path).fileName()), e.text));
        return false;
    }
    return true;
}

Error DesignLibrary::exportDesignFile(const Record *design, const QString &path)
{
    if (!design)
        return Error::file(Tr::tr("No design is selected."));
    const Result<QByteArray> data = designFileData(*design);
    if (!data)
        return Error::file(Tr::tr("The design could not be archived. %1").arg(data.error().text));
    return ProtectedFiles::writeAtomically(path, data.value());
}

void DesignLibrary::setSelectedDesignIndex(int index)
{
    m_prefs.setInteger(P::selectedDesign, std::max(0, index));
}

int DesignLibrary::selectedDesignIndex() const
{
    const qsizetype count = designs().size();
    if (count == 0)
        return -1;
    return int(std::clamp<qint64>(m_prefs.integer(P::selectedDesign), 0, count - 1));
}

QString DesignLibrary::defaultResourceText(const QString &name)
{
    const QString fileName = name == QLatin1String("CSS") ? QStringLiteral("CSS.css") : name + QStringLiteral(".htm");
    return QString::fromUtf8(readResource(fileName));
}

} // namespace tabo
