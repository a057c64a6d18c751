#include "plist/PlistTestUtil.h"
#include "store/KeyedArchive.h"

#include <cstdint>
#include <cstdlib>

using namespace tabo;

// Whatever the reader accepts must survive being archived and read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QString error;
    const QVariant value
        = KeyedArchive::unarchive(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)), &error);
    if (!value.isValid()) {
        if (error.isEmpty())
            std::abort();
        return 0;
    }
    const QByteArray archive = KeyedArchive::archive(value, &error);
    if (archive.isEmpty())
        return error.contains(QLatin1String("date")) ? 0 : (std::abort(), 0);
    if (!test::identical(KeyedArchive::unarchive(archive), value))
        std::abort();
    return 0;
}
