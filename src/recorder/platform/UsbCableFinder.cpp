#include "recorder/platform/UsbCableFinder.h"

#include "base/TextScan.h"

#include <libudev.h>

#include <string_view>

namespace skeldon {

namespace {

// The adapter's identity, 1D7C:4E15, in either letter case.
constexpr const char* Vendor = "1[dD]7[cC]";
constexpr const char* Product = "4[eE]15";
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

using DeviceList = std::unique_ptr<udev_enumerate, UnrefEnumerate>;
using Device = std::unique_ptr<udev_device, UnrefDevice>;

/// The USB adapters of the cable's kind. The look happens every second, and among the few devices
/// of the bus it costs much less than among all terminals. Null where the system does not tell.
DeviceList FindAdapters(udev* service)
{
    DeviceList list(udev_enumerate_new(service));
    if (!list || udev_enumerate_add_match_subsystem(list.get(), "usb") < 0 ||
        udev_enumerate_add_match_sysattr(list.get(), "idVendor", Vendor) < 0 ||
        udev_enumerate_add_match_sysattr(list.get(), "idProduct", Product) < 0 ||
        udev_enumerate_scan_devices(list.get()) < 0)
        return nullptr;
    return list;
}

DeviceList FindPortsOf(udev* service, udev_device* adapter)
{
    DeviceList list(udev_enumerate_new(service));
    if (!list || udev_enumerate_add_match_subsystem(list.get(), "tty") < 0 ||
        udev_enumerate_add_match_parent(list.get(), adapter) < 0 ||
        udev_enumerate_scan_devices(list.get()) < 0)
        return nullptr;
    return list;
}

std::string_view Attribute(udev_device* device, const char* name)
{
    const char* const value = device ? udev_device_get_sysattr_value(device, name) : nullptr;
    return value ? TrimWhite(value) : std::string_view();
}

bool IsRecorderPort(udev_device* adapter, udev_device* port)
{
    const std::string_view serial = Attribute(adapter, "serial");
    if (serial == WholeIdentity)
        return true;
    // The parent belongs to `port`.
    udev_device* const part =
        udev_device_get_parent_with_subsystem_devtype(port, "usb", "usb_interface");
    return serial == AdapterSerial && Attribute(part, "bInterfaceNumber") == SecondInterface;
}

/// The device path of the recorder's port on the adapter.
std::optional<std::string> RecorderPortOf(udev* service, udev_device* adapter)
{
    const DeviceList ports = FindPortsOf(service, adapter);
    udev_list_entry* entry = ports ? udev_enumerate_get_list_entry(ports.get()) : nullptr;
    for (; entry != nullptr; entry = udev_list_entry_get_next(entry)) {
        const Device port(udev_device_new_from_syspath(service, udev_list_entry_get_name(entry)));
        const char* const path = port ? udev_device_get_devnode(port.get()) : nullptr;
        if (path != nullptr && IsRecorderPort(adapter, port.get()))
            return path;
    }
    return std::nullopt;
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
    const DeviceList adapters = FindAdapters(m_udev.get());
    udev_list_entry* entry = adapters ? udev_enumerate_get_list_entry(adapters.get()) : nullptr;
    for (; entry != nullptr; entry = udev_list_entry_get_next(entry)) {
        const Device adapter(
            udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)));
        std::optional<std::string> port =
            adapter ? RecorderPortOf(m_udev.get(), adapter.get()) : std::nullopt;
        if (port)
            return port;
    }
    return std::nullopt;
}

} // namespace skeldon
