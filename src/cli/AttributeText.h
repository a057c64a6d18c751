#pragma once

#include <QString>

namespace tabo {
class Record;
}

namespace tabo::cli {

// Attribute values as the command line writes and reads them.
class AttributeText
{
public:
    // Sets the attribute named `key` from `text`, parsed by the attribute's
    // type: dates in ISO 8601, booleans true/false/1/0, numbers in the C
    // locale ("NaN" allowed except for integers). False with a one-line reason.
    static bool assign(Record &record, const QString &key, const QString &text, QString *error);
    // The value for people: "" when empty, numbers exact, dates ISO 8601.
    static QString plain(const Record &record, int attr);
};

} // namespace tabo::cli
