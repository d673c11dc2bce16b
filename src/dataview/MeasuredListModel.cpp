#include "dataview/MeasuredListModel.h"

#include "dataview/ListText.h"
#include "resources/StringTable.h"

namespace skeldon {

QString TitleOf(ListColumn column)
{
    switch (column) {
    case ListColumn::Date:
        return Text(StringId::ColumnDate);
    case ListColumn::Time:
        return Text(StringId::ColumnTime);
    case ListColumn::X:
        return Text(StringId::ColumnX);
    case ListColumn::Y:
        return Text(StringId::ColumnY);
    case ListColumn::Z:
        return Text(StringId::ColumnZ);
    case ListColumn::Resultant:
        return Text(StringId::ColumnResultant);
    case ListColumn::Temperature:
        return Text(StringId::ColumnTemperature);
    case ListColumn::Humidity:
        return Text(StringId::ColumnHumidity);
    case ListColumn::Number:
    case ListColumn::Count:
        break;
    }
    return {};
}

void CMeasuredListModel::SetRowCount(int count)
{
    beginResetModel();
    m_rows = count;
    endResetModel();
}

int CMeasuredListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int CMeasuredListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ListColumnCount;
}

QVariant CMeasuredListModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::AccessibleTextRole || !m_source || !index.isValid())
        return {};
    return m_source(static_cast<std::size_t>(index.row()), static_cast<ListColumn>(index.column()));
}

QVariant CMeasuredListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const auto column = static_cast<ListColumn>(section);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return TitleOf(column);
    if (role == Qt::TextAlignmentRole) {
        const Qt::Alignment side = column == ListColumn::Number ? Qt::AlignRight : Qt::AlignHCenter;
        return QVariant::fromValue(side | Qt::AlignVCenter);
    }
    return {};
}

} // namespace skeldon
