#include "recorder/platform/TerminalSetting.h"

#include "recorder/SerialPort.h"

// The kernel's own structure, which takes any baud rate; the library's can not be included beside.
#include <asm/termbits.h>
#include <sys/ioctl.h>

namespace skeldon {

bool SetUpTerminal(int descriptor)
{
    termios2 setting{};
    if (::ioctl(descriptor, TCGETS2, &setting) != 0)
        return false;
    const auto clear = [](tcflag_t& flags, tcflag_t bits) { flags &= ~bits; };
    clear(setting.c_iflag,
          IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IXON | IXOFF);
    clear(setting.c_oflag, OPOST);
    clear(setting.c_lflag, ECHO | ECHONL | ICANON | ISIG | IEXTEN);
    clear(setting.c_cflag, CSIZE | CBAUD | CBAUD << IBSHIFT);
    setting.c_cflag |= CS8 | CREAD | CLOCAL | BOTHER | BOTHER << IBSHIFT;
    setting.c_ispeed = SerialSetting::Baud;
    setting.c_ospeed = SerialSetting::Baud;
    setting.c_cc[VMIN] = 1;
    setting.c_cc[VTIME] = 0;
    (void)::ioctl(descriptor, TCSETS2, &setting);
    return true;
}

} // namespace skeldon
