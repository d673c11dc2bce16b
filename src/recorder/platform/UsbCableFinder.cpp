#include "recorder/platform/UsbCableFinder.h"

#include "base/TextScan.h"

#include <libudev.h>

#include <string_view>

namespace skeldon {

namespace {

constexpr std::string_view Vendor = "1D7C";
constexpr std::string_view Product = "4E15";
constexpr std::string_view WholeIdentity = "00000002B";
constexpr std::string_view AdapterSerial = "00000002";
/// The adapter's second port, B.
constexpr std::string_view SecondInterface = "01";

struct UnrefEnumerate
{
    void operator()(udev_enumerate* list) const { udev_enumerate_unref(list); }
};

struct UnrefDevice
{
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

std::string_view Attribute(udev_device* device, const char* name)
{
    const char* const value = device ? udev_device_get_sysattr_value(device, name) : nullptr;
    return value ? TrimWhite(value) : std::string_view();
}

bool IsRecorderCable(udev_device* port)
{
    // The parents belong to `port`.
    udev_device* const adapter =
        udev_device_get_parent_with_subsystem_devtype(port, "usb", "usb_device");
    if (!EqualNoCase(Attribute(adapter, "idVendor"), Vendor) ||
        !EqualNoCase(Attribute(adapter, "idProduct"), Product))
        return false;
    const std::string_view serial = Attribute(adapter, "serial");
    if (serial == WholeIdentity)
        return true;
    udev_device* const part =
        udev_device_get_parent_with_subsystem_devtype(port, "usb", "usb_interface");
    return serial == AdapterSerial && Attribute(part, "bInterfaceNumber") == SecondInterface;
}

} // namespace

void CUsbCableFinder::Release::operator()(udev* service) const
{
    udev_unref(service);
}

CUsbCableFinder::CUsbCableFinder()
    : m_udev(udev_new())
{}

std::optional<std::string> CUsbCableFinder::FindPort()
{
    if (!m_udev)
        return std::nullopt;
    const std::unique_ptr<udev_enumerate, UnrefEnumerate> list(udev_enumerate_new(m_udev.get()));
    if (!list || udev_enumerate_add_match_subsystem(list.get(), "tty") < 0 ||
        udev_enumerate_scan_devices(list.get()) < 0)
        return std::nullopt;
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(list.get()))
    {
        const std::unique_ptr<udev_device, UnrefDevice> port(
            udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)));
        const char* const path = port ? udev_device_get_devnode(port.get()) : nullptr;
        if (path && IsRecorderCable(port.get()))
            return path;
    }
    return std::nullopt;
}

} // namespace skeldon
