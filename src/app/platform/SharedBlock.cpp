#include "app/platform/SharedBlock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace skeldon {

CSharedBlock::CSharedBlock(const std::string& name)
{
    m_descriptor = CDescriptor(
        shm_open(('/' + name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!m_descriptor.IsOpen())
        return;
    struct stat status = {};
    const bool hasRoom = fstat(m_descriptor.Get(), &status) == 0 &&
                         (status.st_size >= off_t{sizeof(Words)} ||
                          ftruncate(m_descriptor.Get(), sizeof(Words)) == 0);
    void* const memory = hasRoom ? mmap(nullptr, sizeof(Words), PROT_READ | PROT_WRITE, MAP_SHARED,
                                        m_descriptor.Get(), 0)
                                 : MAP_FAILED;
    if (memory == MAP_FAILED)
        return;
    m_words = static_cast<std::uint32_t*>(memory);
    const bool isCreator = IsAlone();
    if (isCreator)
        std::fill_n(m_words, std::tuple_size_v<Words>, 0U);
}

CSharedBlock::~CSharedBlock()
{
    if (m_words != nullptr)
        munmap(m_words, sizeof(Words));
}

bool CSharedBlock::IsAlone() const
{
    const bool isAlone = flock(m_descriptor.Get(), LOCK_EX | LOCK_NB) == 0;
    flock(m_descriptor.Get(), LOCK_SH | LOCK_NB);
    return isAlone;
}

} // namespace skeldon
