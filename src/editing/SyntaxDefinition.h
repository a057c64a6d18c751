#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace tabo {

class Preferences;

// One way of colouring a text: a list of components applied in order, each
// finding its runs and giving them its colour and its name as their mode.
struct SyntaxComponent
{
    enum class Type { BlockComment, OneLineComment, String, Tag, Keywords, UserIdentifiers, Unknown };
    Type type = Type::Unknown;
    QString name;
    QString start;
    QString end;
    QChar escape = QLatin1Char('\\');
    QString ignoredComponent;
    QStringList keywords;
    QString charset; // the characters an identifier is made of
    QColor color;    // the component's own, used when no preference names one
};

class SyntaxDefinition
{
public:
    // "HTML" or "CSS": the dictionary file of that name in the resources.
    static SyntaxDefinition load(const QString &name);
    // From its dictionary form: "Components", an array of dictionaries with
    // "Type", "Name", "Color" and what the type needs.
    static SyntaxDefinition fromDictionary(const QVariantMap &dictionary);

    // Registers the colours of the "SyntaxColorDefaults" resource as the
    // first values of the "SyntaxColoring:Color:…" preferences.
    static void registerColorDefaults(Preferences &prefs);
    // A colour from its components (0…1), as dictionaries store them.
    static QColor colorFromComponents(const QVariantList &components);

    // The components with the user's colours and keyword lists applied:
    // "SyntaxColoring:Color:" + name, "SyntaxColoring:Keywords:" + name and
    // "SyntaxColoring:UserIdentifiers" over the definition's own.
    SyntaxDefinition withPreferences(const Preferences &prefs) const;

    bool isEmpty() const { return m_components.isEmpty(); }
    const QList<SyntaxComponent> &components() const { return m_components; }
    // A run's mode is its component's name; modes are numbered from 1 by the
    // names' first appearance (0 is uncoloured text), since two components
    // may share a name and so a mode and a colour.
    int modeOf(const QString &name) const;
    int modeCount() const { return int(m_names.size()); }
    QString modeName(int mode) const { return mode > 0 ? m_names.value(mode - 1) : QString(); }
    // The colour of a mode: that of the first component with its name.
    QColor modeColor(int mode) const;

private:
    QList<SyntaxComponent> m_components;
    QStringList m_names;
};

} // namespace tabo
