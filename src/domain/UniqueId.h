#pragma once

#include <QString>
#include <QUuid>

namespace tabo {

// A new globally unique identifier in the usual upper-case form.
inline QString newUniqueId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace tabo
