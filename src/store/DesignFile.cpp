#include "store/DesignFile.h"

#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DesignFile)
};
} // namespace

namespace tabo {

namespace {

const QString kDesignDic = QStringLiteral("designDic");

} // namespace

Result<QVariantMap> archivedDictionary(const QByteArray &data, const QString &key)
{
    const Result<QVariant> read = KeyedArchive::unarchive(data);
    if (!read)
        return Error::file(Tr::tr("Not an archive: %1").arg(read.error().message()));
    const QVariant &root = read.value();
    const QVariant value = root.toMap().value(key);
    if (root.metaType() != QMetaType::fromType<QVariantMap>() || value.metaType() != QMetaType::fromType<QVariantMap>()
        || value.toMap().isEmpty())
        return Error::file(Tr::tr("The archive holds no “%1”.").arg(key));
    return value.toMap();
}

Result<QByteArray> designFileData(const Record &design)
{
    QVariantMap dictionary = ObjectDictionary::toDictionary(design);
    dictionary.insert(ObjectDictionary::kClassKey, QStringLiteral("Design"));
    return KeyedArchive::archive(QVariantMap{{kDesignDic, dictionary}});
}

Result<QVariantMap> readDesignFile(const QByteArray &data)
{
    Result<QVariantMap> dictionary = archivedDictionary(data, kDesignDic);
    if (dictionary)
        dictionary.value().insert(ObjectDictionary::kClassKey, QStringLiteral("Design"));
    return dictionary;
}

} // namespace tabo
