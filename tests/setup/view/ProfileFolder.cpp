#include "setup/view/ProfileFolder.h"

#include <QDir>

namespace skeldon::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* DataHome = "XDG_DATA_HOME";

void Write(const fs::path& folder, const std::string& title, const std::string& conditions)
{
    fs::create_directories(folder);
    WriteText(folder / (title + ".skp"), "[Configuration]\r\n" + conditions);
}

} // namespace

CProfileFolder::CProfileFolder()
    : m_earlier(qgetenv(DataHome))
{
    qputenv(DataHome, QByteArray::fromStdString((m_folder / "data").string()));
    fs::create_directories(Profiles());
}

CProfileFolder::~CProfileFolder()
{
    std::error_code ignored;
    fs::permissions(Profiles(), fs::perms::owner_all, ignored);
    qputenv(DataHome, m_earlier);
}

ProfileFolders CProfileFolder::Folders() const
{
    ProfileFolders folders = FindProfileFolders();
    folders.templates = m_folder / "Template";
    return folders;
}

QStringList CProfileFolder::Files() const
{
    return QDir(QString::fromStdString(Profiles().string())).entryList(QDir::Files | QDir::Hidden);
}

void CProfileFolder::WriteProfile(const std::string& title, const std::string& conditions) const
{
    Write(Profiles(), title, conditions);
}

void CProfileFolder::WriteTemplate(const std::string& title, const std::string& conditions) const
{
    Write(Folders().templates, title, conditions);
}

CMeasureCondition CProfileFolder::Read(const std::string& title) const
{
    CMeasureCondition condition;
    condition.SerialNo = -1;
    [[maybe_unused]] const std::error_code ignored = condition.Load(Profiles() / (title + ".skp"));
    return condition;
}

} // namespace skeldon::test
