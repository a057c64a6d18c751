#include "editing/SyntaxDefinition.h"

#include "prefs/Preferences.h"
#include "store/PropertyList.h"

namespace tabo {

namespace {

SyntaxComponent::Type typeFromName(const QString &type)
{
    using T = SyntaxComponent::Type;
    static const QHash<QString, T> types = {
        {QStringLiteral("BlockComment"), T::BlockComment}, {QStringLiteral("OneLineComment"), T::OneLineComment},
        {QStringLiteral("String"), T::String},             {QStringLiteral("Tag"), T::Tag},
        {QStringLiteral("Keywords"), T::Keywords},         {QStringLiteral("UserIdentifiers"), T::UserIdentifiers},
    };
    return types.value(type, T::Unknown);
}

QString colorKey(const QString &name)
{
    return QStringLiteral("SyntaxColoring:Color:") + name;
}

// Preferences hold colours as "#rrggbb"; older ones as component arrays.
QColor colorFromValue(const QVariant &value)
{
    if (value.metaType().id() == QMetaType::QVariantList || value.metaType().id() == QMetaType::QStringList)
        return SyntaxDefinition::colorFromComponents(value.toList());
    const QColor color = QColor::fromString(value.toString().trimmed());
    return color;
}

} // namespace

QColor SyntaxDefinition::colorFromComponents(const QVariantList &components)
{
    if (components.size() < 3)
        return {};
    bool ok = true;
    float c[4] = {0, 0, 0, 1};
    for (qsizetype i = 0; i < components.size() && i < 4; ++i) {
        bool one = false;
        c[i] = std::clamp(components.at(i).toFloat(&one), 0.0f, 1.0f);
        ok = ok && one;
    }
    return ok ? QColor::fromRgbF(c[0], c[1], c[2], c[3]) : QColor();
}

SyntaxDefinition SyntaxDefinition::load(const QString &name)
{
    const QVariant root = plist::readFile(QStringLiteral(":/syntax/%1.plist").arg(name)).value();
    return fromDictionary(root.toMap());
}

SyntaxDefinition SyntaxDefinition::fromDictionary(const QVariantMap &dictionary)
{
    SyntaxDefinition definition;
    for (const QVariant &entry : dictionary.value(QStringLiteral("Components")).toList()) {
        const QVariantMap d = entry.toMap();
        SyntaxComponent c;
        c.type = typeFromName(d.value(QStringLiteral("Type")).toString());
        c.name = d.value(QStringLiteral("Name")).toString();
        // A component that cannot be run is left out rather than guessed at.
        if (c.type == SyntaxComponent::Type::Unknown || c.name.isEmpty())
            continue;
        c.start = d.value(QStringLiteral("Start")).toString();
        c.end = d.value(QStringLiteral("End")).toString();
        const QString escape = d.value(QStringLiteral("EscapeChar")).toString();
        if (!escape.isEmpty())
            c.escape = escape.front();
        c.ignoredComponent = d.value(QStringLiteral("IgnoredComponent")).toString();
        for (const QVariant &k : d.value(QStringLiteral("Keywords")).toList())
            c.keywords << k.toString();
        c.charset = d.value(QStringLiteral("Charset")).toString();
        c.color = colorFromComponents(d.value(QStringLiteral("Color")).toList());
        const bool needsStart = c.type != SyntaxComponent::Type::Keywords
            && c.type != SyntaxComponent::Type::UserIdentifiers;
        const bool needsEnd = needsStart && c.type != SyntaxComponent::Type::OneLineComment;
        if ((needsStart && c.start.isEmpty()) || (needsEnd && c.end.isEmpty()))
            continue;
        definition.m_components << c;
        if (!definition.m_names.contains(c.name))
            definition.m_names << c.name;
    }
    return definition;
}

void SyntaxDefinition::registerColorDefaults(Preferences &prefs)
{
    const QVariantMap defaults = plist::readFile(QStringLiteral(":/syntax/SyntaxColorDefaults.plist")).value().toMap();
    QVariantMap registered;
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        const QColor color = colorFromValue(it.value());
        if (color.isValid())
            registered.insert(it.key(), color.name());
    }
    prefs.registerDefaults(registered);
}

SyntaxDefinition SyntaxDefinition::withPreferences(const Preferences &prefs) const
{
    SyntaxDefinition result = *this;
    const QStringList userIdentifiers = prefs.raw(QStringLiteral("SyntaxColoring:UserIdentifiers")).toStringList();
    for (SyntaxComponent &c : result.m_components) {
        const int key = Preferences::keyIndex(colorKey(c.name));
        const QColor chosen = colorFromValue(key >= 0 ? prefs.value(Preferences::Key(key))
                                                      : prefs.raw(colorKey(c.name)));
        if (chosen.isValid())
            c.color = chosen;
        const QVariant keywords = prefs.raw(QStringLiteral("SyntaxColoring:Keywords:") + c.name);
        if (keywords.isValid())
            c.keywords = keywords.toStringList();
        if (c.type == SyntaxComponent::Type::UserIdentifiers)
            c.keywords = userIdentifiers;
    }
    return result;
}

int SyntaxDefinition::modeOf(const QString &name) const
{
    return int(m_names.indexOf(name)) + 1;
}

QColor SyntaxDefinition::modeColor(int mode) const
{
    const QString name = modeName(mode);
    for (const SyntaxComponent &c : m_components) {
        if (c.name == name)
            return c.color;
    }
    return {};
}

} // namespace tabo
