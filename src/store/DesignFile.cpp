#include "store/DesignFile.h"

#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"

namespace tabo {

namespace {

const QString kDesignDic = QStringLiteral("designDic");

} // namespace

QVariantMap archivedDictionary(const QByteArray &data, const QString &key, QString *error)
{
    QString reason;
    const QVariant root = KeyedArchive::unarchive(data, &reason);
    if (!root.isValid()) {
        if (error)
            *error = QStringLiteral("Not an archive: %1").arg(reason);
        return {};
    }
    const QVariant value = root.toMap().value(key);
    if (root.metaType() != QMetaType::fromType<QVariantMap>() || value.metaType() != QMetaType::fromType<QVariantMap>()
        || value.toMap().isEmpty()) {
        if (error)
            *error = QStringLiteral("The archive holds no “%1”.").arg(key);
        return {};
    }
    return value.toMap();
}

QByteArray designFileData(const Record &design)
{
    QVariantMap dictionary = ObjectDictionary::toDictionary(design);
    dictionary.insert(ObjectDictionary::kClassKey, QStringLiteral("Design"));
    return KeyedArchive::archive(QVariantMap{{kDesignDic, dictionary}});
}

QVariantMap readDesignFile(const QByteArray &data, QString *error)
{
    QVariantMap dictionary = archivedDictionary(data, kDesignDic, error);
    if (!dictionary.isEmpty())
        dictionary.insert(ObjectDictionary::kClassKey, QStringLiteral("Design"));
    return dictionary;
}

} // namespace tabo
