#include "recorder/platform/UsbCableFinder.h"

#include <gtest/gtest.h>

#include <umockdev.h>

#include <memory>
#include <string>

namespace skeldon {
namespace {

/// The system's devices as a test wants them. Only under umockdev-wrapper: without it the test
/// fails, so that nobody takes the real devices for these.
class UsbCableFinder : public testing::Test
{
protected:
    void SetUp() override
    {
        m_devices.reset(umockdev_testbed_new());
        ASSERT_TRUE(umockdev_in_mock_environment());
    }

    /// An adapter with one port at interface `interface`.
    std::string Plug(const std::string& name, const std::string& vendor, const std::string& product,
                     const char* serial, const std::string& interface, const std::string& port)
    {
        const std::string adapter = Add("usb", name, nullptr,
                                        {"idVendor", vendor, "idProduct", product,
                                         serial ? "serial" : "none", serial ? serial : ""},
                                        {"DEVTYPE", "usb_device"});
        AddPort(adapter, name, interface, port);
        return adapter;
    }

    void AddPort(const std::string& adapter, const std::string& name, const std::string& interface,
                 const std::string& port)
    {
        const std::string part = Add("usb", name + ":1." + interface, adapter.c_str(),
                                     {"bInterfaceNumber", interface}, {"DEVTYPE", "usb_interface"});
        const std::string serial = Add("usb-serial", port, part.c_str(), {}, {});
        Add("tty", "tty-" + port, serial.c_str(), {}, {"DEVNAME", "/dev/" + port});
    }

    void Unplug(const std::string& path)
    {
        umockdev_testbed_remove_device(m_devices.get(), path.c_str());
    }

    std::string Add(const char* subsystem, const std::string& name, const char* parent,
                    const std::vector<std::string>& attributes,
                    const std::vector<std::string>& properties)
    {
        const auto list = [](const std::vector<std::string>& texts) {
            std::vector<char*> pointers;
            for (const std::string& text : texts)
                pointers.push_back(const_cast<char*>(text.c_str()));
            pointers.push_back(nullptr);
            return pointers;
        };
        char* const path =
            umockdev_testbed_add_devicev(m_devices.get(), subsystem, name.c_str(), parent,
                                         list(attributes).data(), list(properties).data());
        EXPECT_NE(path, nullptr);
        const std::string result = path ? path : "";
        g_free(path);
        return result;
    }

    struct Unref
    {
        void operator()(UMockdevTestbed* devices) const { g_object_unref(devices); }
    };
    std::unique_ptr<UMockdevTestbed, Unref> m_devices;
};

TEST_F(UsbCableFinder, FindsNothingWithoutACable)
{
    CUsbCableFinder finder;
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    Add("tty", "ttyS0", nullptr, {}, {"DEVNAME", "/dev/ttyS0"});
    EXPECT_EQ(finder.FindPort(), std::nullopt);
}

TEST_F(UsbCableFinder, FindsTheSecondPortOfTheAdapter)
{
    const std::string adapter = Plug("1-1", "1d7c", "4e15", "00000002", "00", "ttyUSB0");
    CUsbCableFinder finder;
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    AddPort(adapter, "1-1", "01", "ttyUSB1");
    EXPECT_EQ(finder.FindPort(), "/dev/ttyUSB1");
}

TEST_F(UsbCableFinder, FindsAnAdapterWithTheWholeIdentityOnAnyPort)
{
    Plug("1-1", "1D7C", "4E15", "00000002B", "00", "ttyUSB4");
    EXPECT_EQ(CUsbCableFinder().FindPort(), "/dev/ttyUSB4");
}

TEST_F(UsbCableFinder, SeesTheCableComeAndGo)
{
    CUsbCableFinder finder;
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    const std::string adapter = Plug("1-1", "1d7c", "4e15", "00000002B", "00", "ttyUSB0");
    EXPECT_EQ(finder.FindPort(), "/dev/ttyUSB0");
    Unplug(adapter);
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    Plug("2-1", "1d7c", "4e15", "00000002B", "00", "ttyUSB3");
    EXPECT_EQ(finder.FindPort(), "/dev/ttyUSB3");
}

TEST_F(UsbCableFinder, NeverFindsACableOfAnotherIdentity)
{
    const struct
    {
        const char* vendor;
        const char* product;
        const char* serial;
        const char* interface;
    } rows[] = {
        {"1d7d", "4e15", "00000002B", "00"}, {"1d7c", "4e16", "00000002B", "00"},
        {"1d7c", "4e15", "00000003B", "01"}, {"1d7c", "4e15", "00000002b", "00"},
        {"1d7c", "4e15", "00000002A", "01"}, {"1d7c", "4e15", "00000002", "00"},
        {"1d7c", "4e15", "00000002", "02"},  {"1d7c", "4e15", "00000003", "01"},
        {"1d7c", "4e15", "", "01"},          {"1d7c", "4e15", nullptr, "01"},
    };
    for (const auto& row : rows) {
        m_devices.reset();
        m_devices.reset(umockdev_testbed_new());
        Plug("3-1", row.vendor, row.product, row.serial, row.interface, "ttyUSB7");
        EXPECT_EQ(CUsbCableFinder().FindPort(), std::nullopt)
            << row.vendor << row.product << (row.serial ? row.serial : "-") << row.interface;
    }
}

TEST_F(UsbCableFinder, PicksItsCableAmongOthers)
{
    Plug("1-1", "1d7c", "4e15", "00000009", "01", "ttyUSB0");
    Plug("1-2", "0403", "6001", "00000002B", "00", "ttyUSB1");
    Plug("1-3", "1d7c", "4e15", "00000002", "01", "ttyUSB2");
    EXPECT_EQ(CUsbCableFinder().FindPort(), "/dev/ttyUSB2");
}

} // namespace
} // namespace skeldon
