#include "app/Settings.h"

#include <algorithm>

namespace skeldon {

namespace {

QString PathOf(const QString& section, const QString& key)
{
    return section + QLatin1Char('/') + key;
}

} // namespace

CSettings::CSettings()
    : m_store(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("brennick-works"),
              QStringLiteral("SKELDON Light"))
{}

CSettings::CSettings(const QString& file)
    : m_store(file, QSettings::IniFormat)
{}

int CSettings::GetInt(const QString& section, const QString& key, int fallback) const
{
    bool isNumber = false;
    const int value = m_store.value(PathOf(section, key)).toString().toInt(&isNumber);
    return isNumber ? value : fallback;
}

QString CSettings::GetText(const QString& section, const QString& key,
                           const QString& fallback) const
{
    const QVariant value = m_store.value(PathOf(section, key));
    // Text with a comma that someone wrote by hand without quotes is read as a list.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", "));
    return value.isValid() ? value.toString() : fallback;
}

QPoint CSettings::GetProfilePoint(const QString& section, const QString& key, QPoint fallback) const
{
    return {GetInt(section, key + QLatin1Char('X'), fallback.x()),
            GetInt(section, key + QLatin1Char('Y'), fallback.y())};
}

QRect CSettings::GetProfileRect(const QString& section, const QString& key,
                                const QRect& fallback) const
{
    // What stands in the store may be anything: edges are kept within what a rectangle can count.
    const auto edge = [&](const char* name, int otherwise) {
        constexpr int Farthest = 0x0FFFFFFF;
        return std::clamp(GetInt(section, key + QLatin1String(name), otherwise), -Farthest,
                          Farthest);
    };
    const int left = edge("Left", fallback.left());
    const int top = edge("Top", fallback.top());
    const int right = edge("Right", fallback.left() + fallback.width());
    const int bottom = edge("Bottom", fallback.top() + fallback.height());
    return {left, top, right - left, bottom - top};
}

void CSettings::WriteInt(const QString& section, const QString& key, int value)
{
    m_store.setValue(PathOf(section, key), value);
}

void CSettings::WriteText(const QString& section, const QString& key, const QString& value)
{
    m_store.setValue(PathOf(section, key), value);
}

void CSettings::WriteProfilePoint(const QString& section, const QString& key, QPoint point)
{
    WriteInt(section, key + QLatin1Char('X'), point.x());
    WriteInt(section, key + QLatin1Char('Y'), point.y());
}

void CSettings::WriteProfileRect(const QString& section, const QString& key, const QRect& rect)
{
    WriteInt(section, key + QStringLiteral("Left"), rect.left());
    WriteInt(section, key + QStringLiteral("Top"), rect.top());
    WriteInt(section, key + QStringLiteral("Right"), rect.left() + rect.width());
    WriteInt(section, key + QStringLiteral("Bottom"), rect.top() + rect.height());
}

void CSettings::Sync()
{
    m_store.sync();
}

} // namespace skeldon
