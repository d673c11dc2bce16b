#include "base/Paths.h"

#include <gtest/gtest.h>

namespace skeldon {
namespace {

TEST(DirectoryOf, EndsBeforeTheLastSlashOrBackslash)
{
    EXPECT_EQ(DirectoryOf("/a/b.skd"), "/a");
    EXPECT_EQ(DirectoryOf("a\\b/c"), "a\\b");
    EXPECT_EQ(DirectoryOf("a/b\\c"), "a/b");
    EXPECT_EQ(DirectoryOf("C:\\data\\b.skd"), "C:\\data");
    EXPECT_EQ(DirectoryOf("b.skd"), "");
    EXPECT_EQ(DirectoryOf(""), "");
    EXPECT_EQ(DirectoryOf("/a/"), "/a");
}

TEST(DirectoryOf, KeepsARoot)
{
    EXPECT_EQ(DirectoryOf("/b.skd"), "/");
    EXPECT_EQ(DirectoryOf("\\b.skd"), "\\");
    EXPECT_EQ(DirectoryOf("C:\\b.skd"), "C:\\");
    EXPECT_EQ(DirectoryOf("C:/b.skd"), "C:/");
}

TEST(FileTitleOf, IsTheNameWithoutFolderAndExtension)
{
    EXPECT_EQ(FileTitleOf("x/a.b.skp"), "a.b");
    EXPECT_EQ(FileTitleOf("x.y/a"), "a");
    EXPECT_EQ(FileTitleOf("x\\a.skp"), "a");
    EXPECT_EQ(FileTitleOf("a."), "a");
    EXPECT_EQ(FileNameOf("x\\y/a.skp"), "a.skp");
}

TEST(ExtensionOf, IsWhatFollowsTheLastPointOfTheName)
{
    EXPECT_EQ(ExtensionOf("x/a.b.skp"), "skp");
    EXPECT_EQ(ExtensionOf("x.y/a"), "");
    EXPECT_EQ(ExtensionOf("a."), "");
    EXPECT_EQ(ExtensionOf("a.SKD"), "SKD");
}

TEST(WithoutTrailingSeparator, CutsOneSeparatorUnlessThatLeavesARoot)
{
    EXPECT_EQ(WithoutTrailingSeparator("/a/"), "/a");
    EXPECT_EQ(WithoutTrailingSeparator("a\\"), "a");
    EXPECT_EQ(WithoutTrailingSeparator("/a//"), "/a/");
    EXPECT_EQ(WithoutTrailingSeparator("/a"), "/a");
    EXPECT_EQ(WithoutTrailingSeparator("/"), "/");
    EXPECT_EQ(WithoutTrailingSeparator("\\"), "\\");
    EXPECT_EQ(WithoutTrailingSeparator("C:\\"), "C:\\");
    EXPECT_EQ(WithoutTrailingSeparator(""), "");
}

TEST(WithExtension, ReplacesOrAddsTheExtension)
{
    EXPECT_EQ(WithExtension("/a.d/b.txt", "csv"), "/a.d/b.csv");
    EXPECT_EQ(WithExtension("/a.d/b", "csv"), "/a.d/b.csv");
    EXPECT_EQ(WithExtension("b.1.2", "skd"), "b.1.skd");
    EXPECT_EQ(WithExtension("b.", "skd"), "b.skd");
    EXPECT_EQ(WithExtension("b.csvx", "csv"), "b.csv");
}

TEST(WithExtension, KeepsTheSpellingOfTheWantedExtension)
{
    EXPECT_EQ(WithExtension("/a/B.CSV", "csv"), "/a/B.CSV");
    EXPECT_EQ(WithExtension("/a/B.Skd", "skd"), "/a/B.Skd");
}

} // namespace
} // namespace skeldon
