#include "app/SharedLink.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace skeldon;
using namespace Qt::StringLiterals;

namespace {

using Words = std::array<std::uint32_t, 3>;

/// The bytes of a block as the system keeps them, seen without becoming one of its users.
class CRawBlock
{
public:
    explicit CRawBlock(const std::string& name)
        : m_descriptor(shm_open(('/' + name).c_str(), O_RDWR | O_CREAT, S_IRUSR | S_IWUSR))
    {}
    ~CRawBlock() { close(m_descriptor); }
    CRawBlock(const CRawBlock&) = delete;
    CRawBlock& operator=(const CRawBlock&) = delete;

    [[nodiscard]] Words Read() const
    {
        Words words{};
        if (pread(m_descriptor, words.data(), sizeof words, 0) != ssize_t{sizeof words})
            words.fill(0xFFFFFFFF);
        return words;
    }
    void Write(const Words& words) const
    {
        if (pwrite(m_descriptor, words.data(), sizeof words, 0) != ssize_t{sizeof words})
            qFatal("the block can not be prepared");
    }
    [[nodiscard]] off_t Size() const
    {
        struct stat status = {};
        return fstat(m_descriptor, &status) == 0 ? status.st_size : -1;
    }

private:
    int m_descriptor;
};

/// Another program of the family: a process that uses the block and its mutex, and does what it is
/// told.
class CPartner
{
public:
    CPartner(const std::string& block, const std::string& mutex)
    {
        std::array<int, 2> ends{};
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
            qFatal("no way to the partner");
        m_child = fork();
        if (m_child == 0) {
            close(ends[0]);
            Serve(ends[1], block, mutex);
        }
        close(ends[1]);
        m_end = ends[0];
        Do('?');
    }
    ~CPartner()
    {
        Kill();
        close(m_end);
    }
    CPartner(const CPartner&) = delete;
    CPartner& operator=(const CPartner&) = delete;

    void Hold() { Do('h'); }
    void Release() { Do('r'); }
    void Lock() { Do('l'); }
    void Unlock() { Do('u'); }

    /// Ends the process as a crash would.
    void Kill()
    {
        if (m_child <= 0)
            return;
        kill(m_child, SIGKILL);
        waitpid(m_child, nullptr, 0);
        m_child = 0;
    }

private:
    void Do(char order)
    {
        char answer = 0;
        if (write(m_end, &order, 1) != 1 || read(m_end, &answer, 1) != 1 || answer != '+')
            qFatal("the partner did not do what it was told");
    }

    [[noreturn]] static void Serve(int end, const std::string& block, const std::string& mutex)
    {
        const CSharedBlock shared(block);
        CLockFile lock;
        bool isWell = shared.GetWords() != nullptr && lock.Open(mutex);
        char order = 0;
        while (isWell && read(end, &order, 1) == 1) {
            if (order == 'h')
                shared.GetWords()[2] = 7;
            else if (order == 'r')
                shared.GetWords()[2] = 0;
            else if (order == 'l')
                isWell = lock.TryLock() == CLockFile::Outcome::Taken;
            else if (order == 'u')
                lock.Unlock();
            const char answer = isWell ? '+' : '-';
            if (write(end, &answer, 1) != 1)
                break;
        }
        _exit(0);
    }

    pid_t m_child = -1;
    int m_end = -1;
};

} // namespace

class CSharedLinkTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_block;
    const std::string m_mutex = "skeldon test mutex";
    int m_serial = 0;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
        m_block =
            "skeldon test block " + std::to_string(getpid()) + "-" + std::to_string(++m_serial);
    }

    void cleanup() { shm_unlink(('/' + m_block).c_str()); }

    // --- locks by name ---

    void ALockIsHeldByOneAtATime()
    {
        CLockFile one;
        CLockFile other;
        QVERIFY(one.Open("lock"));
        QVERIFY(other.Open("lock"));
        QCOMPARE(one.TryLock(), CLockFile::Outcome::Taken);
        QCOMPARE(one.TryLock(), CLockFile::Outcome::Taken);
        QCOMPARE(other.TryLock(), CLockFile::Outcome::HeldElsewhere);
        one.Unlock();
        QCOMPARE(other.TryLock(), CLockFile::Outcome::Taken);
        QCOMPARE(one.TryLock(), CLockFile::Outcome::HeldElsewhere);
        other.Close();
        QCOMPARE(one.TryLock(), CLockFile::Outcome::Taken);
    }

    void LocksOfOtherNamesAreOtherLocks()
    {
        CLockFile one;
        CLockFile other;
        QVERIFY(one.Open("one lock"));
        QVERIFY(other.Open("another lock"));
        QCOMPARE(one.TryLock(), CLockFile::Outcome::Taken);
        QCOMPARE(other.TryLock(), CLockFile::Outcome::Taken);
    }

    void OpeningDoesNotTakeAndOpeningAgainGivesUp()
    {
        CLockFile one;
        CLockFile other;
        QVERIFY(one.Open("lock"));
        QVERIFY(other.Open("lock"));
        QCOMPARE(other.TryLock(), CLockFile::Outcome::Taken);
        QVERIFY(other.Open("lock"));
        QCOMPARE(one.TryLock(), CLockFile::Outcome::Taken);
    }

    void ALockEndsWithItsOwner()
    {
        CLockFile mine;
        QVERIFY(mine.Open(m_mutex));
        {
            CPartner partner(m_block, m_mutex);
            partner.Lock();
            QCOMPARE(mine.TryLock(), CLockFile::Outcome::HeldElsewhere);
            partner.Kill();
            QCOMPARE(mine.TryLock(), CLockFile::Outcome::Taken);
        }
        mine.Unlock();
        auto gone = std::make_unique<CLockFile>();
        QVERIFY(gone->Open(m_mutex));
        QCOMPARE(gone->TryLock(), CLockFile::Outcome::Taken);
        gone.reset();
        QCOMPARE(mine.TryLock(), CLockFile::Outcome::Taken);
    }

    void ProgramsThatAreStartedMeanwhileDoNotKeepALock()
    {
        CLockFile mine;
        QVERIFY(mine.Open("lock"));
        QCOMPARE(mine.TryLock(), CLockFile::Outcome::Taken);
        QProcess viewer;
        viewer.start(u"sleep"_s, {u"600"_s});
        QVERIFY(viewer.waitForStarted());
        mine.Close();
        QVERIFY(mine.Open("lock"));
        const CLockFile::Outcome outcome = mine.TryLock();
        viewer.kill();
        QVERIFY(viewer.waitForFinished());
        QCOMPARE(outcome, CLockFile::Outcome::Taken);
    }

    void ALockThatCanNotBeMadeSaysSo()
    {
        CLockFile lock;
        QCOMPARE(lock.TryLock(), CLockFile::Outcome::Failed);
        lock.Unlock();
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
        QVERIFY(!lock.Open("folder"));
        QCOMPARE(lock.TryLock(), CLockFile::Outcome::Failed);
        qputenv("XDG_RUNTIME_DIR", m_folder->filePath(u"not there"_s).toLocal8Bit());
        QVERIFY(!lock.Open("lock"));
        QCOMPARE(lock.TryLock(), CLockFile::Outcome::Failed);
    }

    void ALockDoesNotFollowALinkThatSomeoneLaid()
    {
        const QString target = m_folder->filePath(u"of someone else"_s);
        QVERIFY(QFile::link(target, m_folder->filePath(u"lock"_s)));
        CLockFile lock;
        QVERIFY(!lock.Open("lock"));
        QVERIFY(!QFileInfo::exists(target));
    }

    void LocksLieInTheUsersRuntimeFolder()
    {
        QCOMPARE(RuntimeFolder(), std::filesystem::path(m_folder->path().toStdString()));
        CLockFile lock;
        QVERIFY(lock.Open("brennick-works SKELDON MutexKey"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 QStringList(u"brennick-works SKELDON MutexKey"_s));
    }

    void WithoutARuntimeFolderThereIsOneOfTheUsersOwn()
    {
        const std::filesystem::path own = "/tmp/skeldon-" + std::to_string(getuid());
        qunsetenv("XDG_RUNTIME_DIR");
        QCOMPARE(RuntimeFolder(), own);
        qputenv("XDG_RUNTIME_DIR", "");
        QCOMPARE(RuntimeFolder(), own);
        qputenv("XDG_RUNTIME_DIR", "not/absolute");
        QCOMPARE(RuntimeFolder(), own);
        struct stat status = {};
        QCOMPARE(lstat(own.c_str(), &status), 0);
        QVERIFY(S_ISDIR(status.st_mode));
        QCOMPARE(status.st_uid, getuid());
        QCOMPARE(status.st_mode & 0777U, 0700U);
    }

    // --- the block ---

    void TheBlockAndItsMutexHaveTheFamilysNames()
    {
        const CSharedLink link;
        const int block = shm_open("/brennick-works SKELDON Sharing Momory", O_RDONLY, 0);
        QVERIFY(block >= 0);
        close(block);
        QVERIFY(
            QFileInfo::exists(m_folder->filePath(u"brennick-works SKELDON Sharing MutexKey"_s)));
    }

    void ANewBlockIsThreeZeroWords()
    {
        const CSharedLink link(m_block, m_mutex);
        const CRawBlock raw(m_block);
        QCOMPARE(raw.Size(), off_t{12});
        QCOMPARE(raw.Read(), (Words{0, 0, 0}));
    }

    void WhoIsAloneWithTheBlockZeroesIt()
    {
        const CRawBlock raw(m_block);
        raw.Write({99, 98, 97});
        CSharedLink link(m_block, m_mutex);
        QCOMPARE(raw.Read(), (Words{0, 0, 0}));
        QCOMPARE(link.GetHoldFlag(), 0U);
    }

    void WhatABlockHoldsBehindItsWordsIsLeftAlone()
    {
        const int larger = shm_open(('/' + m_block).c_str(), O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
        const std::array<char, 64> ones = [] {
            std::array<char, 64> bytes{};
            bytes.fill(1);
            return bytes;
        }();
        QCOMPARE(write(larger, ones.data(), ones.size()), ssize_t{64});
        const CSharedLink link(m_block, m_mutex);
        std::array<char, 64> found{};
        QCOMPARE(pread(larger, found.data(), found.size(), 0), ssize_t{64});
        close(larger);
        for (std::size_t i = 0; i < found.size(); ++i)
            QCOMPARE(int{found[i]}, i < 12 ? 0 : 1);
    }

    void TheHandleGoesIntoTheFirstWordOnly()
    {
        CPartner partner(m_block, m_mutex);
        const CRawBlock raw(m_block);
        raw.Write({1, 2, 3});
        CSharedLink link(m_block, m_mutex);
        link.SetWindowHandle(0xFEDCBA98);
        QCOMPARE(raw.Read(), (Words{0xFEDCBA98, 2, 3}));
        link.SetWindowHandle(0);
        QCOMPARE(raw.Read(), (Words{0, 2, 3}));
    }

    void ASecondUserOfTheBlockLeavesItAsItIs()
    {
        CSharedLink first(m_block, m_mutex);
        first.SetWindowHandle(4711);
        {
            const CSharedLink second(m_block, m_mutex);
        }
        QCOMPARE(CRawBlock(m_block).Read(), (Words{4711, 0, 0}));
    }

    // --- the hold flag ---

    void ALivingPartnerHolds()
    {
        CSharedLink link(m_block, m_mutex);
        QCOMPARE(link.GetHoldFlag(), 0U);
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        QCOMPARE(link.GetHoldFlag(), 7U);
        QCOMPARE(link.GetHoldFlag(), 7U);
        partner.Release();
        QCOMPARE(link.GetHoldFlag(), 0U);
    }

    void APartnerThatWasThereFirstHolds()
    {
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        CSharedLink link(m_block, m_mutex);
        QCOMPARE(link.GetHoldFlag(), 7U);
    }

    void TheFlagOfADeadPartnerIsCleared()
    {
        CSharedLink link(m_block, m_mutex);
        link.SetWindowHandle(4711);
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        QCOMPARE(link.GetHoldFlag(), 7U);
        partner.Kill();
        QCOMPARE(link.GetHoldFlag(), 0U);
        QCOMPARE(CRawBlock(m_block).Read(), (Words{4711, 0, 0}));
    }

    void TheFlagOfADeadPartnerStaysWhileAnotherLives()
    {
        CSharedLink link(m_block, m_mutex);
        CPartner dead(m_block, m_mutex);
        CPartner living(m_block, m_mutex);
        dead.Hold();
        dead.Kill();
        // It can not be told whose flag it is.
        QCOMPARE(link.GetHoldFlag(), 7U);
        living.Kill();
        QCOMPARE(link.GetHoldFlag(), 0U);
    }

    void ANewPartnerCanHoldAfterADeadOne()
    {
        CSharedLink link(m_block, m_mutex);
        {
            CPartner dead(m_block, m_mutex);
            dead.Hold();
        }
        QCOMPARE(link.GetHoldFlag(), 0U);
        CPartner living(m_block, m_mutex);
        QCOMPARE(link.GetHoldFlag(), 0U);
        living.Hold();
        QCOMPARE(link.GetHoldFlag(), 7U);
    }

    void AFlagLeftFromBeforeTheStartIsGone()
    {
        {
            CPartner dead(m_block, m_mutex);
            dead.Hold();
        }
        QCOMPARE(CRawBlock(m_block).Read(), (Words{0, 0, 7}));
        CSharedLink link(m_block, m_mutex);
        QCOMPARE(link.GetHoldFlag(), 0U);
        QCOMPARE(CRawBlock(m_block).Read(), (Words{0, 0, 0}));
    }

    // --- the mutex of the block ---

    void APartnerAtTheBlockCostsTheTickAndNoMore()
    {
        CSharedLink link(m_block, m_mutex);
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        partner.Lock();
        // Would this wait, it would wait for ever.
        QCOMPARE(link.GetHoldFlag(), std::nullopt);
        QCOMPARE(link.GetHoldFlag(), std::nullopt);
        partner.Unlock();
        QCOMPARE(link.GetHoldFlag(), 7U);
        // The block is left free behind every look at it.
        partner.Lock();
        partner.Unlock();
    }

    void APartnerThatDiedAtTheBlockFreesIt()
    {
        CSharedLink link(m_block, m_mutex);
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        partner.Lock();
        partner.Kill();
        QCOMPARE(link.GetHoldFlag(), 0U);
    }

    void StartAndEndGoOnBesideAPartnerThatHangs()
    {
        CPartner partner(m_block, m_mutex);
        partner.Lock();
        CSharedLink link(m_block, m_mutex);
        link.SetWindowHandle(4711);
        QCOMPARE(CRawBlock(m_block).Read()[0], 4711U);
        QCOMPARE(link.GetHoldFlag(), std::nullopt);
        partner.Unlock();
        QCOMPARE(link.GetHoldFlag(), 0U);
    }

    void WithoutAMutexTheBlockIsReadAllTheSame()
    {
        CPartner partner(m_block, m_mutex);
        partner.Hold();
        qputenv("XDG_RUNTIME_DIR", m_folder->filePath(u"not there"_s).toLocal8Bit());
        CSharedLink link(m_block, m_mutex);
        link.SetWindowHandle(4711);
        QCOMPARE(link.GetHoldFlag(), 7U);
        QCOMPARE(CRawBlock(m_block).Read(), (Words{4711, 0, 7}));
    }

    void WithoutABlockNobodyHolds()
    {
        // No block can have a name with a separator in it.
        CSharedLink link("no/such/block", m_mutex);
        link.SetWindowHandle(4711);
        QCOMPARE(link.GetHoldFlag(), 0U);
        CLockFile mutex;
        QVERIFY(mutex.Open(m_mutex));
        QCOMPARE(mutex.TryLock(), CLockFile::Outcome::Taken);
        QCOMPARE(link.GetHoldFlag(), 0U);
    }
};

QTEST_GUILESS_MAIN(CSharedLinkTest)
#include "SharedLinkTest.moc"
