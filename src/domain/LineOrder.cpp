#include "domain/LineOrder.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"

#include <algorithm>

namespace tabo {

QList<Record *> orderedLines(const Record &document, qint64 itemSortOrder)
{
    const int rel = document.desc().relationIndex(u"items");
    if (rel < 0)
        return {};
    QList<Record *> lines = document.toMany(rel);
    // Record ids grow with every insertion, so they give the order of entry.
    std::sort(lines.begin(), lines.end(), [](const Record *a, const Record *b) { return a->id() < b->id(); });
    switch (itemSortOrder) {
    case 0:
        std::stable_sort(lines.begin(), lines.end(), [](const Record *a, const Record *b) {
            return a->text(Item::title).compare(b->text(Item::title), Qt::CaseInsensitive) < 0;
        });
        break;
    case 2:
        std::reverse(lines.begin(), lines.end());
        break;
    case 3:
        std::stable_sort(lines.begin(), lines.end(),
                         [](const Record *a, const Record *b) { return a->num(Item::amount) > b->num(Item::amount); });
        break;
    default:
        break;
    }
    return lines;
}

QList<Record *> orderedLines(const Record &document, const Preferences &prefs)
{
    return orderedLines(document, prefs.integer(Preferences::itemSortOrder));
}

} // namespace tabo
