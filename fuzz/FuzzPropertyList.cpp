#include "plist/PlistTestUtil.h"
#include "store/PropertyList.h"

#include <cstdint>
#include <cstdlib>

using namespace tabo;

// Whatever the reader accepts must survive a binary round trip unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QString error;
    const QVariant value = plist::read(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)), &error);
    if (!value.isValid()) {
        if (error.isEmpty())
            std::abort();
        return 0;
    }
    // Dates that are not numbers cannot be written; that is the only refusal.
    const QByteArray binary = plist::write(value, plist::Format::Binary, &error);
    if (binary.isEmpty())
        return error.contains(QLatin1String("date")) ? 0 : (std::abort(), 0);
    if (!test::identical(plist::read(binary), value))
        std::abort();
    plist::write(value, plist::Format::Xml);
    return 0;
}
