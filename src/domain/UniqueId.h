#pragma once

#include "domain/Record.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <algorithm>

namespace tabo {

// A new globally unique identifier in the usual upper-case form.
inline QString newUniqueId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

// Gives `record` a new ID when its own is empty or another of `others` has
// it already: an imported file must not make one ID name two records.
inline void ensureOwnUniqueId(Record &record, int attr, const QList<Record *> &others)
{
    const QString id = record.text(attr);
    if (id.isEmpty() || std::any_of(others.cbegin(), others.cend(), [&](const Record *r) {
            return r != &record && r->text(attr) == id;
        }))
        record.setText(attr, newUniqueId());
}

} // namespace tabo
