#pragma once

#include "base/Date.h"
#include "base/Error.h"
#include "prefs/PrefKeys.def"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <memory>

class QSettings;
class QTemporaryDir;

namespace tabo {

// The one preference store: a QSettings file, every key declared once in
// PrefKeys.def with its type. A missing value, or one of the wrong type, reads
// as the empty value of the key's type (or its registered fallback).
class Preferences
{
public:
    enum Key : int {
#define TABO_PREF_ENUM(id, name, type) id,
        TABO_PREF_KEYS(TABO_PREF_ENUM)
#undef TABO_PREF_ENUM
        KeyCount
    };
    enum class Type { String, Int, Bool, Real, Date, Data };

    struct KeyInfo
    {
        Key key;
        QString name;
        Type type;
    };

    // $XDG_CONFIG_HOME/Tabo/Tabo.conf
    static QString defaultFilePath();
    explicit Preferences(const QString &filePath = defaultFilePath());
    ~Preferences();
    Preferences(const Preferences &) = delete;
    Preferences &operator=(const Preferences &) = delete;

    static const KeyInfo &info(Key key);
    static int keyIndex(QStringView name); // -1 when unknown
    static QString typeName(Type type);

    bool contains(Key key) const; // a value is stored (fallbacks do not count)
    QString string(Key key) const;
    qint64 integer(Key key) const;
    bool boolean(Key key) const;
    double real(Key key) const;
    float single(Key key) const { return float(real(key)); }
    Date date(Key key) const;
    QByteArray data(Key key) const;
    // The typed value, the registered default, or an invalid QVariant.
    QVariant value(Key key) const;

    // `registerDefaults`: values that stand in for keys nobody stored; they
    // are never written, so a later change of the defaults reaches everyone
    // who kept them. Keys by their stored names.
    void registerDefaults(const QVariantMap &defaults);

    // The locale documents are written for ("de_DE"): `prefsRegion`, else
    // the one of the installed language defaults, else the desktop's.
    QString documentRegion() const;

    void setString(Key key, const QString &value);
    void setInteger(Key key, qint64 value);
    void setBool(Key key, bool value);
    void setReal(Key key, double value);
    void setDate(Key key, const Date &value);
    void setData(Key key, const QByteArray &value);
    void remove(Key key);

    // Command-line access by stored name; the text is parsed by the key's type
    // (dates in ISO 8601). Refused with a reason when it cannot be, or when
    // `rule` refuses the parsed value (its reason).
    Error setFromText(const QString &name, const QString &text,
                      const std::function<QString(Key, const QVariant &)> &rule = {});
    QString toText(Key key) const;

    // Writes every pair of the language-default file chosen by
    // `languageDefaults` (0 English, 1 German, 2 French, 3 Spanish) over the
    // stored values and flushes. Any other value installs nothing: false.
    bool installLanguageDefaults();
    static QString languageDefaultsResource(qint64 languageDefaults);
    // Stores the installed language's values of keys a later version added
    // (a new label, a tax's category) where nothing is stored yet; what the
    // person set stays. Returns how many were added.
    int completeFromLanguageDefaults();

    // Raw access for values that are not declared keys (language files may
    // carry more than the table).
    void setRaw(const QString &name, const QVariant &value);
    QVariant raw(const QString &name) const;
    void removeRaw(const QString &name);

    // Brings settings written by earlier versions up to this one, one
    // numbered step at a time (`settingsVersion` counts them); a step never
    // runs twice. Returns how many ran.
    int migrate();

    // Removes the settings lock file at `lockPath` when no live process
    // holds it; true when it was removed.
    static bool clearStaleLock(const QString &lockPath);
    enum class LockState { Free, Cleared, Held };
    static LockState lockState(const QString &lockPath, qint64 *owner = nullptr);
    // Waits a few seconds for a live holder of the lock, then says who it is.
    static Error awaitLock(const QString &lockPath);

    // Why the settings file was not used (damaged, not a file, locked): the
    // values then live in memory only and the file stays as it is.
    Error loadError() const { return m_loadError; }
    // The last settings read and found good, kept beside the file.
    QString backupFilePath() const;
    // Puts the kept copy in place of the file (the damaged one moves to
    // ".damaged"); a new Preferences reads it.
    Error restoreBackup();

    void sync(); // failures go to the log
    // Writes what is pending and says when it could not be stored.
    Error syncChecked();
    QString filePath() const;

private:
    void keepGoodCopy();
    QString m_filePath;
    Error m_loadError;
    std::unique_ptr<QTemporaryDir> m_scratch;
    QList<std::pair<QString, QVariant>> languageDefaultValues() const;
    std::unique_ptr<QSettings> m_settings;
    QVariantMap m_registered;
};

} // namespace tabo
