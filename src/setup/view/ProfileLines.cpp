#include "setup/view/ProfileLines.h"

#include "setup/view/ProfileName.h"

#include <algorithm>

namespace skeldon {

namespace {

bool IsBefore(const ProfileLine& a, const ProfileLine& b)
{
    const int order = a.text.compare(b.text, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.text < b.text;
}

} // namespace

QString LineText(ListMode mode, int hostNumber, const QString& name)
{
    if (mode == ListMode::Templates)
        return name;
    return QStringLiteral("%1 ").arg(hostNumber, 2, 10, QLatin1Char('0')) + name;
}

void CProfileLines::Fill(const CProfileStore& store, ListMode mode)
{
    m_lines.clear();
    for (int i = 0; i < store.GetCount(); ++i) {
        const CProfile entry = store.GetAt(i);
        m_lines.push_back({LineText(mode, entry.SerialNo, NameText(entry.ProfileName)), i});
    }
    std::stable_sort(m_lines.begin(), m_lines.end(), IsBefore);
}

int CProfileLines::Add(const ProfileLine& line)
{
    const auto place = std::upper_bound(m_lines.begin(), m_lines.end(), line, IsBefore);
    const auto added = m_lines.insert(place, line);
    return static_cast<int>(added - m_lines.begin());
}

void CProfileLines::RemoveAt(int position)
{
    m_lines.erase(m_lines.begin() + position);
}

const ProfileLine& CProfileLines::At(int position) const
{
    return m_lines.at(static_cast<std::size_t>(position));
}

} // namespace skeldon
