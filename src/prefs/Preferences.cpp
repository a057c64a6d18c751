#include "prefs/Preferences.h"

#include "prefs/Locations.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSaveFile>
#include <QSettings>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QDebug>

#include <algorithm>
#include <iterator>
#include <QFileInfo>
#include <QStandardPaths>

#include <plist/plist.h>

#include <QCoreApplication>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Preferences)
};
} // namespace

namespace tabo {

namespace {

using Type = Preferences::Type;

const std::array<Preferences::KeyInfo, Preferences::KeyCount> &table()
{
    static const std::array<Preferences::KeyInfo, Preferences::KeyCount> keys = {{
#define TABO_PREF_ROW(id, name, type) {Preferences::id, QStringLiteral(name), Type::type},
        TABO_PREF_KEYS(TABO_PREF_ROW)
#undef TABO_PREF_ROW
    }};
    return keys;
}

const QHash<QString, int> &byName()
{
    static const QHash<QString, int> map = [] {
        QHash<QString, int> m;
        for (const auto &k : table())
            m.insert(k.name, k.key);
        return m;
    }();
    return map;
}

// Values come back from an INI file as text; these parse them strictly so that
// a value of the wrong type reads as empty.
bool parseInteger(const QVariant &v, qint64 *out)
{
    if (v.metaType().id() == QMetaType::Bool) {
        *out = v.toBool() ? 1 : 0;
        return true;
    }
    if (v.metaType().id() == QMetaType::Double || v.metaType().id() == QMetaType::Float) {
        const double d = v.toDouble();
        if (!(d >= -9223372036854775808.0 && d < 9223372036854775808.0))
            return false;
        *out = qint64(d);
        return true;
    }
    if (v.metaType().id() != QMetaType::QString && v.metaType().id() != QMetaType::LongLong
        && v.metaType().id() != QMetaType::Int)
        return false;
    const QString s = v.toString().trimmed();
    bool ok = false;
    *out = s.toLongLong(&ok);
    if (!ok) {
        const double d = QLocale::c().toDouble(s, &ok);
        ok = ok && d >= -9223372036854775808.0 && d < 9223372036854775808.0;
        if (ok)
            *out = qint64(d);
    }
    return ok;
}

bool parseReal(const QVariant &v, double *out)
{
    if (v.metaType().id() == QMetaType::QByteArray || v.metaType().id() == QMetaType::QStringList)
        return false;
    bool ok = false;
    *out = QLocale::c().toDouble(v.toString().trimmed(), &ok);
    return ok;
}

bool parseBool(const QVariant &v, bool *out)
{
    const QString s = v.toString().trimmed().toLower();
    if (s == QLatin1String("true") || s == QLatin1String("1") || s == QLatin1String("yes")) {
        *out = true;
        return true;
    }
    if (s == QLatin1String("false") || s == QLatin1String("0") || s == QLatin1String("no")) {
        *out = false;
        return true;
    }
    return false;
}

QVariant fromPlistNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
        char *s = nullptr;
        plist_get_string_val(node, &s);
        const QString r = QString::fromUtf8(s ? s : "");
        free(s);
        return r;
    }
    case PLIST_BOOLEAN: {
        uint8_t b = 0;
        plist_get_bool_val(node, &b);
        return bool(b);
    }
    case PLIST_UINT: {
        uint64_t u = 0;
        plist_get_uint_val(node, &u);
        return qint64(u);
    }
    case PLIST_REAL: {
        double d = 0;
        plist_get_real_val(node, &d);
        return d;
    }
    case PLIST_DATE: {
        int32_t sec = 0, usec = 0;
        plist_get_date_val(node, &sec, &usec);
        return QVariant::fromValue(Date::fromReferenceSeconds(sec + usec / 1e6));
    }
    case PLIST_DATA: {
        char *buf = nullptr;
        uint64_t len = 0;
        plist_get_data_val(node, &buf, &len);
        const QByteArray r(buf, qsizetype(len));
        free(buf);
        return r;
    }
    default:
        return {};
    }
}

} // namespace

namespace {

bool processAlive(qint64 pid)
{
    return pid > 0 && (::kill(pid_t(pid), 0) == 0 || errno == EPERM);
}

// The settings file as QSettings writes it: UTF-8 text of sections, pairs
// and comments. Anything else (random bytes, a truncated binary) would be
// read as a few odd keys and then written back without the person's data.
QString formatProblem(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Tr::tr("It cannot be read (%1).").arg(file.errorString());
    const QByteArray bytes = file.readAll();
    if (bytes.contains('\0'))
        return Tr::tr("It holds binary data.");
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    if (utf8.hasError())
        return Tr::tr("It is not text.");
    int lineNumber = 0;
    for (QStringView line : QStringView(text).split(QLatin1Char('\n'))) {
        ++lineNumber;
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#')))
            continue;
        if ((line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) || line.contains(QLatin1Char('=')))
            continue;
        return Tr::tr("Line %1 is neither a section nor a setting.").arg(lineNumber);
    }
    return {};
}

} // namespace

Preferences::LockState Preferences::lockState(const QString &lockPath, qint64 *owner)
{
    // QSettings guards its file with a lock file that its owner also holds
    // with flock(). A lock file nobody holds was left by a process that died
    // (empty when it died between creating and writing it): QSettings would
    // wait for it, so it is removed at once.
    const QByteArray name = QFile::encodeName(lockPath);
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return LockState::Free;
    char buf[64] = {};
    const ssize_t n = ::read(fd, buf, sizeof buf - 1);
    const qint64 pid = n > 0 ? std::strtoll(buf, nullptr, 10) : 0;
    if (owner)
        *owner = pid;
    LockState state = LockState::Held;
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
        // Nobody holds it; a live owner named in it that does not lock with
        // flock (another Qt) still counts.
        if (pid == qint64(::getpid()) || !processAlive(pid)) {
            ::unlink(name.constData());
            state = LockState::Cleared;
        }
        ::flock(fd, LOCK_UN);
    }
    ::close(fd);
    return state;
}

bool Preferences::clearStaleLock(const QString &lockPath)
{
    return lockState(lockPath) == LockState::Cleared;
}

Error Preferences::awaitLock(const QString &lockPath)
{
    // Another Tabo writes its settings in a few milliseconds; one that keeps
    // the lock longer is stuck, and waiting for it would hang this command.
    constexpr int kWaitMs = 3000;
    qint64 owner = 0;
    for (int waited = 0; lockState(lockPath, &owner) == LockState::Held; waited += 50) {
        if (waited >= kWaitMs)
            return Error::file(Tr::tr("The settings file is locked by another program (process %1) that has held "
                                      "it for more than %2 seconds. Quit that program (or end process %1) and "
                                      "try again; nothing was changed.")
                                   .arg(owner > 0 ? QString::number(owner) : QStringLiteral("unknown"))
                                   .arg(kWaitMs / 1000));
        ::usleep(50 * 1000);
    }
    return {};
}

QString Preferences::defaultFilePath()
{
    return Locations::settingsFile();
}

Preferences::Preferences(const QString &filePath)
    : m_filePath(filePath)
{
    const QFileInfo info(filePath);
    if (info.exists() && !info.isFile())
        m_loadError = Error::file(Tr::tr("The settings file “%1” is not a file (a folder or something else "
                                         "stands in its place). Tabo has left it as it is; move it away and "
                                         "start again.")
                                      .arg(filePath));
    else if (info.exists())
        if (const QString problem = formatProblem(filePath); !problem.isEmpty())
            m_loadError
                = Error::file(Tr::tr("The settings file “%1” is damaged. %2 Tabo has left it as it "
                                     "is.%3")
                                  .arg(filePath, problem,
                                      QFileInfo(backupFilePath()).isFile() ? Tr::tr(" The last good settings are "
                                                                                    "kept in “%1”; restore them "
                                                                                    "with tabo-cli prefs restore.")
                                                                                 .arg(backupFilePath())
                                                                           : QString()));
    if (!m_loadError)
        m_loadError = awaitLock(filePath + QStringLiteral(".lock"));
    if (!m_loadError) {
        m_settings = std::make_unique<QSettings>(filePath, QSettings::IniFormat);
        if (m_settings->status() != QSettings::NoError)
            m_loadError = Error::file(
                Tr::tr("The settings file “%1” cannot be read. Tabo has left it as it is.").arg(filePath));
    }
    if (m_loadError) {
        // Nothing of it is read or written: the values live in memory only.
        m_scratch = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(m_scratch->filePath(QStringLiteral("unused.conf")), QSettings::IniFormat);
        return;
    }
    keepGoodCopy();
    // The seller's details got the names scripts and e-invoices use; what was
    // typed under the earlier names moves over once.
    for (const auto &[before, now] : {std::pair{"prefsCountry", "prefsCountryCode"}, {"prefsPhone", "prefsContactPhone"},
                                      {"prefsEmail", "prefsContactEmail"}, {"prefsBank", "prefsBankName"}}) {
        const QString was = QString::fromLatin1(before);
        if (!m_settings->contains(was))
            continue;
        if (!m_settings->contains(QLatin1String(now)))
            m_settings->setValue(QLatin1String(now), m_settings->value(was));
        m_settings->remove(was);
    }
}

Preferences::~Preferences()
{
    // QSettings writes what is pending when it goes; a file that is held
    // by a stuck process would hang the exit, so the pending values are
    // dropped instead (the command that made them has said so).
    if (!m_loadError && awaitLock(m_filePath + QStringLiteral(".lock")))
        (void)m_settings.release();
}

QString Preferences::backupFilePath() const
{
    return m_filePath + QStringLiteral(".bak");
}

void Preferences::keepGoodCopy()
{
    // Read and found good: the copy a damaged file is restored from.
    QFile file(m_filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray good = file.readAll();
    QFile kept(backupFilePath());
    if (kept.open(QIODevice::ReadOnly) && kept.readAll() == good)
        return;
    kept.close();
    QSaveFile copy(backupFilePath());
    if (copy.open(QIODevice::WriteOnly) && copy.write(good) == good.size())
        copy.commit();
}

Error Preferences::restoreBackup()
{
    if (!QFileInfo(backupFilePath()).isFile())
        return Error::file(Tr::tr("There are no kept settings (“%1”) to restore.").arg(backupFilePath()));
    if (const QString problem = formatProblem(backupFilePath()); !problem.isEmpty())
        return Error::file(Tr::tr("The kept settings “%1” are damaged too: %2").arg(backupFilePath(), problem));
    // The damaged file is kept beside, in case something in it matters.
    const QFileInfo current(m_filePath);
    if (current.exists()) {
        const QString aside = m_filePath + QStringLiteral(".damaged");
        QFile::remove(aside);
        if (!QFile::rename(m_filePath, aside))
            return Error::file(Tr::tr("“%1” could not be moved aside; nothing was restored.").arg(m_filePath));
    }
    if (!QFile::copy(backupFilePath(), m_filePath))
        return Error::file(Tr::tr("“%1” could not be written; nothing was restored.").arg(m_filePath));
    return {};
}

Error Preferences::syncChecked()
{
    if (m_loadError)
        return m_loadError;
    if (Error e = awaitLock(m_settings->fileName() + QStringLiteral(".lock")))
        return e;
    m_settings->sync();
    if (m_settings->status() != QSettings::NoError || !QFileInfo(m_settings->fileName()).isFile())
        return Error::file(Tr::tr("The settings file “%1” could not be written (the disk may be full or the "
                                  "file read-only); the change was not stored.")
                               .arg(m_settings->fileName()));
    return {};
}

const Preferences::KeyInfo &Preferences::info(Key key)
{
    return table()[key];
}

int Preferences::keyIndex(QStringView name)
{
    return byName().value(name.toString(), -1);
}

QString Preferences::typeName(Type type)
{
    switch (type) {
    case Type::String: return QStringLiteral("string");
    case Type::Int: return QStringLiteral("integer");
    case Type::Bool: return QStringLiteral("boolean");
    case Type::Real: return QStringLiteral("real");
    case Type::Date: return QStringLiteral("date");
    case Type::Data: return QStringLiteral("data");
    }
    return {};
}

bool Preferences::contains(Key key) const
{
    return m_settings->contains(info(key).name);
}

QString Preferences::string(Key key) const
{
    const QVariant v = value(key);
    return v.metaType().id() == QMetaType::QString ? v.toString() : QString();
}

qint64 Preferences::integer(Key key) const
{
    const QVariant v = value(key);
    return v.isValid() ? v.toLongLong() : 0;
}

bool Preferences::boolean(Key key) const
{
    const QVariant v = value(key);
    return v.isValid() && v.toBool();
}

double Preferences::real(Key key) const
{
    const QVariant v = value(key);
    return v.isValid() ? v.toDouble() : 0.0;
}

Date Preferences::date(Key key) const
{
    const QVariant v = value(key);
    return v.metaType() == QMetaType::fromType<Date>() ? v.value<Date>() : Date();
}

QByteArray Preferences::data(Key key) const
{
    const QVariant v = value(key);
    return v.metaType().id() == QMetaType::QByteArray ? v.toByteArray() : QByteArray();
}

QVariant Preferences::value(Key key) const
{
    const KeyInfo &k = info(key);
    const QVariant v = m_settings->value(k.name);
    if (!v.isValid())
        return m_registered.value(k.name);
    switch (k.type) {
    case Type::String:
        if (v.metaType().id() == QMetaType::QByteArray || v.metaType().id() == QMetaType::QStringList)
            return QString();
        return v.toString();
    case Type::Int: {
        qint64 i = 0;
        return parseInteger(v, &i) ? QVariant(i) : QVariant(qint64(0));
    }
    case Type::Bool: {
        bool b = false;
        return parseBool(v, &b) ? QVariant(b) : QVariant(false);
    }
    case Type::Real: {
        double d = 0;
        return parseReal(v, &d) ? QVariant(d) : QVariant(0.0);
    }
    case Type::Date:
        return QVariant::fromValue(Date::fromIso8601(v.toString()));
    case Type::Data:
        return v.metaType().id() == QMetaType::QByteArray ? v : QVariant(QByteArray());
    }
    return {};
}

void Preferences::setString(Key key, const QString &value)
{
    m_settings->setValue(info(key).name, value);
}

void Preferences::setInteger(Key key, qint64 value)
{
    m_settings->setValue(info(key).name, value);
}

void Preferences::setBool(Key key, bool value)
{
    m_settings->setValue(info(key).name, value);
}

void Preferences::setReal(Key key, double value)
{
    m_settings->setValue(info(key).name, QString::number(value, 'g', 17));
}

void Preferences::setDate(Key key, const Date &value)
{
    if (value.isValid())
        m_settings->setValue(info(key).name, value.toIso8601());
    else
        remove(key);
}

void Preferences::setData(Key key, const QByteArray &value)
{
    m_settings->setValue(info(key).name, value);
}

void Preferences::remove(Key key)
{
    m_settings->remove(info(key).name);
}

Error Preferences::setFromText(const QString &name, const QString &text,
                               const std::function<QString(Key, const QVariant &)> &rule)
{
    const int idx = keyIndex(name);
    if (idx < 0)
        return Error::input(Tr::tr("unknown preference key “%1”").arg(name));
    const Key key = Key(idx);
    const QString t = text.trimmed();
    bool ok = true;
    QVariant parsed;
    switch (info(key).type) {
    case Type::String: parsed = text; break;
    case Type::Int: parsed = t.toLongLong(&ok); break;
    case Type::Bool: {
        bool b = false;
        ok = parseBool(t, &b);
        parsed = b;
        break;
    }
    case Type::Real: {
        // Rates are read in single precision: a value beyond it becomes infinity.
        const double v = QLocale::c().toDouble(t, &ok);
        ok = ok && std::isfinite(v) && std::isfinite(float(v));
        parsed = v;
        break;
    }
    case Type::Date: {
        const Date d = Date::fromIso8601(t);
        ok = d.isValid();
        parsed = QVariant::fromValue(d);
        break;
    }
    case Type::Data: {
        QFile f(t);
        ok = f.open(QIODevice::ReadOnly);
        if (ok)
            parsed = f.readAll();
        break;
    }
    }
    if (!ok)
        return Error::input(
            Tr::tr("“%1” is not a valid %2 for %3")
                .arg(text, info(key).type == Type::Data ? Tr::tr("readable file") : typeName(info(key).type), name));
    if (rule)
        if (const QString refusal = rule(key, parsed); !refusal.isEmpty())
            return Error::input(refusal);
    switch (info(key).type) {
    case Type::String: setString(key, parsed.toString()); break;
    case Type::Int: setInteger(key, parsed.toLongLong()); break;
    case Type::Bool: setBool(key, parsed.toBool()); break;
    case Type::Real: setReal(key, parsed.toDouble()); break;
    case Type::Date: setDate(key, parsed.value<Date>()); break;
    case Type::Data: setData(key, parsed.toByteArray()); break;
    }
    return {};
}

QString Preferences::toText(Key key) const
{
    const QVariant v = value(key);
    if (!v.isValid())
        return {};
    switch (info(key).type) {
    case Type::Bool: return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case Type::Real: return QString::number(v.toDouble(), 'g', 17);
    case Type::Date: return v.value<Date>().toIso8601();
    case Type::Data: return QString::fromLatin1(v.toByteArray().toBase64());
    default: return v.toString();
    }
}

void Preferences::registerDefaults(const QVariantMap &defaults)
{
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it)
        m_registered.insert(it.key(), it.value());
}

QString Preferences::documentRegion() const
{
    const QString region = string(prefsRegion).trimmed();
    if (!region.isEmpty())
        return region;
    // Stores from before the region existed: the language they installed.
    static const char *const regions[] = {"en_US", "de_DE", "fr_FR", "es_ES"};
    const qint64 language = integer(languageDefaults);
    if (contains(languageDefaults) && language >= 0 && language <= 3)
        return QLatin1String(regions[language]);
    return QLocale::system().name();
}

QString Preferences::languageDefaultsResource(qint64 languageDefaults)
{
    static const char *const names[] = {"defaultPrefsEnglish", "defaultPrefsGerman",
                                        "defaultPrefsFrench", "defaultPrefsSpanish"};
    if (languageDefaults < 0 || languageDefaults > 3)
        return {};
    return QStringLiteral(":/prefs/%1.plist").arg(QLatin1String(names[languageDefaults]));
}

QList<std::pair<QString, QVariant>> Preferences::languageDefaultValues() const
{
    QList<std::pair<QString, QVariant>> values;
    const QString path = languageDefaultsResource(integer(languageDefaults));
    QFile f(path);
    if (path.isEmpty() || !f.open(QIODevice::ReadOnly))
        return values;
    const QByteArray xml = f.readAll();
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), uint32_t(xml.size()), &root);
    if (!root || plist_get_node_type(root) != PLIST_DICT) {
        plist_free(root);
        return values;
    }
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(root, &it);
    for (;;) {
        char *k = nullptr;
        plist_t node = nullptr;
        plist_dict_next_item(root, it, &k, &node);
        if (!k)
            break;
        values.append({QString::fromUtf8(k), fromPlistNode(node)});
        free(k);
    }
    free(it);
    plist_free(root);
    return values;
}

bool Preferences::installLanguageDefaults()
{
    const auto values = languageDefaultValues();
    if (values.isEmpty())
        return false;
    for (const auto &[name, value] : values)
        setRaw(name, value);
    sync();
    return true;
}

int Preferences::completeFromLanguageDefaults()
{
    if (!contains(languageDefaults))
        return 0;
    int added = 0;
    for (const auto &[name, value] : languageDefaultValues())
        if (!m_settings->contains(name)) {
            setRaw(name, value);
            ++added;
        }
    if (added)
        sync();
    return added;
}

void Preferences::removeRaw(const QString &name)
{
    m_settings->remove(name);
}

int Preferences::migrate()
{
    using Step = void (*)(Preferences &);
    static const Step steps[] = {
        // 1: cloud storage was never offered on Linux; its three flags only
        // described another platform's store manager.
        [](Preferences &p) {
            for (const char *name : {"isiCloudAvailable", "ubiquityStoreManagerALLOWED", "USMCloudEnabledKey"})
                p.removeRaw(QLatin1String(name));
        },
    };
    constexpr int latest = int(std::size(steps));
    const int done = int(std::clamp<qint64>(integer(settingsVersion), 0, latest));
    for (int i = done; i < latest; ++i)
        steps[i](*this);
    if (done != latest || integer(settingsVersion) != latest)
        setInteger(settingsVersion, latest);
    return latest - done;
}

void Preferences::setRaw(const QString &name, const QVariant &value)
{
    const int idx = keyIndex(name);
    if (idx < 0) {
        m_settings->setValue(name, value);
        return;
    }
    const Key key = Key(idx);
    switch (info(key).type) {
    case Type::Real: setReal(key, value.toDouble()); break;
    case Type::Date:
        if (value.metaType() == QMetaType::fromType<Date>())
            setDate(key, value.value<Date>());
        else
            setDate(key, Date::fromIso8601(value.toString()));
        break;
    default: m_settings->setValue(name, value); break;
    }
}

QVariant Preferences::raw(const QString &name) const
{
    return m_settings->value(name);
}

void Preferences::sync()
{
    if (const Error e = syncChecked())
        qWarning().noquote() << e.message();
}

QString Preferences::filePath() const
{
    return m_filePath;
}

} // namespace tabo
