#pragma once

#include <QPoint>
#include <QRect>
#include <QSettings>
#include <QString>

namespace skeldon {

/// What the program remembers between its runs: integers and texts under a section and a key, each
/// read with its default at the place of use. A value that is no number where one is wanted gives
/// the default. Points and rectangles are kept as two and four integers.
class CSettings
{
public:
    /// The user's own store.
    CSettings();
    /// A store in `file`.
    explicit CSettings(const QString& file);

    [[nodiscard]] int GetInt(const QString& section, const QString& key, int fallback) const;
    [[nodiscard]] QString GetText(const QString& section, const QString& key,
                                  const QString& fallback) const;
    [[nodiscard]] QPoint GetProfilePoint(const QString& section, const QString& key,
                                         QPoint fallback) const;
    /// Left, top, right and bottom; right and bottom lie outside.
    [[nodiscard]] QRect GetProfileRect(const QString& section, const QString& key,
                                       const QRect& fallback) const;

    void WriteInt(const QString& section, const QString& key, int value);
    void WriteText(const QString& section, const QString& key, const QString& value);
    void WriteProfilePoint(const QString& section, const QString& key, QPoint point);
    void WriteProfileRect(const QString& section, const QString& key, const QRect& rect);
    /// Puts what was written on disk. Silent where that can not be done.
    void Sync();

private:
    QSettings m_store;
};

/// The section that nearly all keys lie in.
inline const QString SystemSection = QStringLiteral("System");

} // namespace skeldon
