#pragma once

#include "online/log/MonitorLines.h"

#include <QAbstractListModel>

namespace skeldon {

/// The monitor's lines, one to a row.
class CMonitorModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    /// Moves taken lines in; false if they bring nothing new.
    bool Add(const MonitorPart& part);
    /// Sets the limit and drops the lines that are too many; false if there were none.
    bool SetMaxLines(int lines);
    void Clear();

    [[nodiscard]] const CMonitorLines& Lines() const { return m_lines; }
    /// The row's text from the byte `first` on, at most `count` bytes; the row must exist.
    [[nodiscard]] QString TextOf(int row, std::size_t first, std::size_t count) const;

private:
    CMonitorLines m_lines;
};

} // namespace skeldon
