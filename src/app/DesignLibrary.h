#pragma once

#include "base/Result.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace tabo {

class Interaction;
class Preferences;
class StoreAccess;
class Record;

// The stored designs: the built-in ones installed on first start, added,
// deleted, made default, imported from and exported to design files. The
// design used for rendering is the first one marked default.
class DesignLibrary
{
public:
    DesignLibrary(StoreAccess &store, Preferences &prefs, Interaction &ui);

    // Every design, sorted by title (case-insensitive), then by creation.
    QList<Record *> designs() const;
    // `currentDesign`: the first design (in creation order) whose `isDefault`
    // is on; nullptr when none is (or there is no store).
    Record *currentDesign() const;

    // "Temp001" … "Temp009", "Temp11", "Temp12", "Temp13" (no 010).
    static QStringList firstBuiltInNames();
    // `loadTemplates`: installs the twelve first built-in designs, "Temp001"
    // default, and saves once.
    void loadTemplates();
    // `loadTabo2Template`: installs "Temp14" as a default without clearing
    // any other default.
    void loadTabo2Template();
    // A design made from the built-in design file of that name (not saved).
    Record *createDesignFromResource(const QString &name);

    // `addDesign` "New Design" from the "Invoice", "Item" and "CSS"
    // resources, not default; saved. The caller starts editing its title.
    Record *addDesign();
    // `deleteDesign` after the "Delete Design" confirmation; false when
    // declined.
    bool deleteDesign(Record *design);
    // `makeDefaultDesign` the only default.
    void makeDefaultDesign(Record *design);
    // `importDesign` of `given`, or through the "Import Tabo Design" open panel; nullptr
    // when cancelled or unreadable. Keeps the file's `uniqueID` and `title`.
    Record *importDesign(const QString &given = {});
    Result<Record *> importDesignFile(const QString &path);
    // `exportDesign` through the "Export Tabo Design" save panel.
    bool exportDesign(const Record *design);
    Error exportDesignFile(const Record *design, const QString &path);

    // An edit of a design's title or texts (`title`, `invoice`, `item`,
    // `css`); saved with the next save, so typing does not write each key.
    void setDesignText(Record *design, int attr, const QString &text);

    // Mirrors the list selection into `selectedDesign`.
    void setSelectedDesignIndex(int index);
    int selectedDesignIndex() const;

    // The text of a resource of `addDesign` ("Invoice", "Item", "CSS").
    static QString defaultResourceText(const QString &name);

private:
    StoreAccess &m_store;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
