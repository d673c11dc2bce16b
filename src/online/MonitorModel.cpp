#include "online/MonitorModel.h"

#include "app/DataText.h"

#include <string_view>

namespace skeldon {

int CMonitorModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.Size());
}

QVariant CMonitorModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    return FromDataText(m_lines.Line(static_cast<std::size_t>(index.row())));
}

bool CMonitorModel::Add(const MonitorPart& part)
{
    if (!m_lines.IsNews(part))
        return false;
    // Thousands of lines may come and go at once: whoever looks takes a fresh look.
    beginResetModel();
    m_lines.Add(part);
    endResetModel();
    return true;
}

bool CMonitorModel::SetMaxLines(int lines)
{
    beginResetModel();
    m_lines.m_maxLines = lines;
    const bool isTrimmed = m_lines.Trim();
    endResetModel();
    return isTrimmed;
}

void CMonitorModel::Clear()
{
    beginResetModel();
    m_lines.Clear();
    endResetModel();
}

QString CMonitorModel::TextOf(int row, std::size_t first, std::size_t count) const
{
    const std::string_view line = m_lines.Line(static_cast<std::size_t>(row));
    return first < line.size() ? FromDataText(line.substr(first, count)) : QString();
}

} // namespace skeldon
