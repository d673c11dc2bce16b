#pragma once

#include "Random.h"
#include "data/MeasureData.h"

#include <QString>

#include <string>
#include <vector>

namespace skeldon::soak {

/// The data files of a run, in one folder.
class CSoakFiles
{
public:
    /// Makes them, the large one of so many lines.
    CSoakFiles(QString folder, int lines, CRandom& random);

    [[nodiscard]] QString Large() const { return Path("large.skd"); }
    /// Sound, broken and missing ones. One of them, or one that was saved, may be opened.
    [[nodiscard]] std::vector<QString> ToOpen() const;
    /// Paths that can be written and such that can not.
    [[nodiscard]] std::vector<QString> ToSave() const;

private:
    [[nodiscard]] QString Path(const char* name) const;

    QString m_folder;
};

/// What the file does not hold as the data set does; empty where it holds all of it.
[[nodiscard]] std::string DifferenceTo(const CMeasureData& held, const QString& path);

} // namespace skeldon::soak
