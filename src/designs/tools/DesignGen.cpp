// Build tool: turns the readable sources of the built-in designs into design
// files (keyed archives) with the application's own writer, and the sample
// lines of the design preview into the "PreviewItems" archive.
//
//   tabo-designgen SOURCE_DIR OUTPUT_DIR
//
// SOURCE_DIR/builtin/NAME/{title.txt,page.html,row.html,style.css} → NAME.design
// SOURCE_DIR/PreviewItems.json (array of item attributes) → PreviewItems.plist
// SOURCE_DIR/defaults/* are copied as they are.

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "store/DesignFile.h"
#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cstdio>

using namespace tabo;

namespace {

QString readText(const QString &path, bool *ok)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tabo-designgen: cannot read %s\n", qPrintable(path));
        *ok = false;
        return {};
    }
    return QString::fromUtf8(file.readAll()).trimmed();
}

bool writeFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    if (data.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        std::fprintf(stderr, "tabo-designgen: cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

// The uniqueID of a built-in design is derived from its name, so that a
// rebuilt file is identical to the last one.
QString builtInId(const QString &name)
{
    return QStringLiteral("TABO-BUILTIN-DESIGN-") + name.toUpper();
}

bool writeDesign(const QDir &source, const QString &name, const QDir &out)
{
    bool ok = true;
    const QDir dir(source.filePath(QStringLiteral("builtin/") + name));
    Record design(nullptr, EntityId::Design, 0);
    design.setText(Design::title, readText(dir.filePath(QStringLiteral("title.txt")), &ok));
    design.setText(Design::invoice, readText(dir.filePath(QStringLiteral("page.html")), &ok));
    design.setText(Design::item, readText(dir.filePath(QStringLiteral("row.html")), &ok));
    design.setText(Design::css, readText(dir.filePath(QStringLiteral("style.css")), &ok));
    design.setText(Design::uniqueID, builtInId(name));
    design.setBool(Design::isDefault, false);
    return ok && writeFile(out.filePath(name + QStringLiteral(".design")), designFileData(design).value());
}

bool writePreviewItems(const QDir &source, const QDir &out)
{
    QFile file(source.filePath(QStringLiteral("PreviewItems.json")));
    QJsonParseError error;
    const QJsonDocument json = file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &error)
                                                              : QJsonDocument();
    if (!json.isArray()) {
        std::fprintf(stderr, "tabo-designgen: PreviewItems.json is not a JSON array\n");
        return false;
    }
    QVariantList items;
    for (const QJsonValue &value : json.array()) {
        Record item(nullptr, EntityId::Item, 0);
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!item.setValue(it.key(), it.value().toVariant())) {
                std::fprintf(stderr, "tabo-designgen: PreviewItems.json: bad item attribute %s\n",
                             qPrintable(it.key()));
                return false;
            }
        }
        QVariantMap dictionary = ObjectDictionary::toDictionary(item);
        dictionary.insert(ObjectDictionary::kClassKey, QStringLiteral("Item"));
        items << dictionary;
    }
    return writeFile(out.filePath(QStringLiteral("PreviewItems.plist")),
                     KeyedArchive::archive(QVariantMap{{QStringLiteral("array"), items}}).value());
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "Usage: tabo-designgen SOURCE_DIR OUTPUT_DIR\n");
        return 2;
    }
    const QDir source(QString::fromLocal8Bit(argv[1]));
    QDir out(QString::fromLocal8Bit(argv[2]));
    out.mkpath(QStringLiteral("."));

    bool ok = true;
    const QStringList names = QDir(source.filePath(QStringLiteral("builtin")))
                                  .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        ok = writeDesign(source, name, out) && ok;
    ok = writePreviewItems(source, out) && ok;
    const QDir defaults(source.filePath(QStringLiteral("defaults")));
    for (const QString &name : defaults.entryList(QDir::Files)) {
        QFile file(defaults.filePath(name));
        ok = file.open(QIODevice::ReadOnly) && writeFile(out.filePath(name), file.readAll()) && ok;
    }
    return ok ? 0 : 1;
}
