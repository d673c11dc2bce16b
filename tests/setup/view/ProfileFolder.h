#pragma once

#include "setup/conditions/MeasureCondition.h"
#include "setup/conditions/ProfileFolders.h"
#include "support/TemporaryFolder.h"

#include <QByteArray>
#include <QStringList>

#include <string>

namespace skeldon::test {

/// A user's data folder of its own for as long as this lives, and a folder of templates.
class CProfileFolder
{
public:
    CProfileFolder();
    ~CProfileFolder();
    CProfileFolder(const CProfileFolder&) = delete;
    CProfileFolder& operator=(const CProfileFolder&) = delete;

    [[nodiscard]] ProfileFolders Folders() const;
    [[nodiscard]] std::filesystem::path Profiles() const { return Folders().profiles; }
    /// Names of all files of profiles.
    [[nodiscard]] QStringList Files() const;

    /// Writes a profile or template with these keys of the section of conditions.
    void WriteProfile(const std::string& title, const std::string& conditions) const;
    void WriteTemplate(const std::string& title, const std::string& conditions) const;
    /// What the profile holds on disk.
    [[nodiscard]] CMeasureCondition Read(const std::string& title) const;

private:
    CTemporaryFolder m_folder;
    QByteArray m_earlier;
};

} // namespace skeldon::test
