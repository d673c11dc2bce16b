// The templates that come with the program.
#include "setup/conditions/ConditionFitting.h"
#include "setup/conditions/ProfileFile.h"
#include "setup/conditions/ProfileStore.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace skeldon::test {
namespace {

using testing::ElementsAre;

/// As the window's name box holds them.
constexpr std::size_t NameLimit = 32;
constexpr std::string_view RefusedInNames = "\"*./:<>?\\|";

/// A recorder by its type; negative for alpha firmware.
using Recorder = int;

std::set<Recorder> AllRecorders()
{
    return {0, 1, 2, 3, 5, 10, 20, 50, -1, -2, -3, -5, -10, -20, -50};
}

/// The recorders that take the conditions as they are, with nothing to ask or tell.
std::set<Recorder> FittingRecorders(const CMeasureCondition& condition)
{
    std::set<Recorder> fitting;
    for (const Recorder recorder : AllRecorders()) {
        CMeasureCondition fitted = condition;
        CConditionFitting check(fitted, {std::abs(recorder), recorder < 0, false});
        if (!check.Next())
            fitting.insert(recorder);
    }
    return fitting;
}

class TemplatesTest : public testing::Test
{
protected:
    TemplatesTest()
        : m_store({m_folder.Path(), TEMPLATES, true})
    {}

    void SetUp() override { ASSERT_TRUE(m_store.Load(true)); }

    CTemporaryFolder m_folder;
    CProfileStore m_store;
};

TEST_F(TemplatesTest, AreThoseOfTransportAndMachines)
{
    std::vector<std::string> names;
    for (int i = 0; i < m_store.GetCount(); ++i)
        names.push_back(m_store.GetAt(i).ProfileName);
    EXPECT_THAT(names, ElementsAre("Drop test", "Fragile sea voyage, cyclic", "Machine vibration",
                                   "Parcel by air", "Parcel by road", "Storage climate"));
}

TEST_F(TemplatesTest, CanKeepTheirNamesAsProfiles)
{
    for (int i = 0; i < m_store.GetCount(); ++i) {
        const std::string name = m_store.GetAt(i).ProfileName;
        EXPECT_LE(name.size(), NameLimit) << name;
        EXPECT_EQ(name.find_first_of(RefusedInNames), std::string::npos) << name;
    }
}

TEST_F(TemplatesTest, AreWhatTheProgramWouldWrite)
{
    for (int i = 0; i < m_store.GetCount(); ++i) {
        const CProfile entry = m_store.GetAt(i);
        EXPECT_EQ(ReadText(entry.FilePath), WriteProfileText(entry, {})) << entry.ProfileName;
    }
}

TEST_F(TemplatesTest, FitTheirRecordersWithoutAQuestion)
{
    const std::map<std::string, std::set<Recorder>> expected = {
        {"Drop test", {20, 50, -20, -50}},
        {"Fragile sea voyage, cyclic", {-10, -20, -50}},
        {"Machine vibration", {1, 2, 3, 5, 10, 20, 50, -1, -2, -3, -5, -10, -20, -50}},
        {"Parcel by air", {10, 20, 50, -10, -20, -50}},
        {"Parcel by road", {5, 10, 20, 50, -5, -10, -20, -50}},
        {"Storage climate", AllRecorders()},
    };
    std::map<std::string, std::set<Recorder>> fitting;
    for (int i = 0; i < m_store.GetCount(); ++i)
        fitting[m_store.GetAt(i).ProfileName] = FittingRecorders(m_store.GetAt(i));
    EXPECT_EQ(fitting, expected);
}

TEST_F(TemplatesTest, SeaVoyageRecordsCyclicallyAndStopsAfterAHazard)
{
    for (int i = 0; i < m_store.GetCount(); ++i) {
        const CProfile entry = m_store.GetAt(i);
        const bool isVoyage = entry.ProfileName == "Fragile sea voyage, cyclic";
        EXPECT_EQ(entry.Endless, isVoyage) << entry.ProfileName;
        EXPECT_EQ(entry.Hazard > entry.Threshold, isVoyage) << entry.ProfileName;
    }
}

TEST_F(TemplatesTest, OnlyTheDropTestTraces)
{
    for (int i = 0; i < m_store.GetCount(); ++i) {
        const CProfile entry = m_store.GetAt(i);
        EXPECT_EQ(SamplingTable::IsTrace(entry.GetSampling()), entry.ProfileName == "Drop test")
            << entry.ProfileName;
    }
}

} // namespace
} // namespace skeldon::test
