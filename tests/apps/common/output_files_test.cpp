// SPDX-License-Identifier: MIT
#include "apps/support/CTemporaryFolder.h"
#include "common/CFailure.h"
#include "common/output_files.h"

#include <fcntl.h>
#include <filesystem>
#include <future>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovangl::program {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::ThrowsMessage;

class OutputFiles : public ::testing::Test
{
protected:
    void write(const std::string& name, std::string_view bytes) const
    {
        writeOutputs({{m_folder.pathOf(name), bytes}});
    }

    CTemporaryFolder m_folder;
};

TEST_F(OutputFiles, ANewFileHoldsTheBytesAndStandsAlone)
{
    write("x", "bytes");
    EXPECT_EQ(m_folder.read("x"), "bytes");
    EXPECT_THAT(m_folder.names(), ElementsAre("x"));
}

TEST_F(OutputFiles, ANewFileHasThePermissionsOfTheMask)
{
    const mode_t mask = ::umask(0027);
    write("x", "bytes");
    ::umask(mask);
    EXPECT_EQ(fs::status(m_folder.pathOf("x")).permissions(), fs::perms(0640));
}

TEST_F(OutputFiles, AFileReplacedKeepsItsPermissions)
{
    m_folder.write("x", "old");
    fs::permissions(m_folder.pathOf("x"), fs::perms(0604));
    write("x", "new");
    EXPECT_EQ(m_folder.read("x"), "new");
    EXPECT_EQ(fs::status(m_folder.pathOf("x")).permissions(), fs::perms(0604));
}

TEST_F(OutputFiles, ALinkIsFollowed)
{
    m_folder.write("real", "old");
    fs::create_symlink("real", m_folder.pathOf("link"));
    write("link", "new");
    EXPECT_TRUE(fs::is_symlink(m_folder.pathOf("link")));
    EXPECT_EQ(m_folder.read("real"), "new");
}

TEST_F(OutputFiles, ALinkToNowhereIsAFailure)
{
    fs::create_symlink("nowhere", m_folder.pathOf("link"));
    EXPECT_THROW(write("link", "new"), CFailure);
    EXPECT_THAT(m_folder.names(), ElementsAre("link"));
}

TEST_F(OutputFiles, AFolderIsAFailure)
{
    fs::create_directory(m_folder.pathOf("x"));
    EXPECT_THAT([&] { write("x", "bytes"); },
                ThrowsMessage<CFailure>(m_folder.pathOf("x") + ": Is a directory"));
}

TEST_F(OutputFiles, AMissingFolderIsAFailure)
{
    EXPECT_THAT([&] { write("no/x", "bytes"); },
                ThrowsMessage<CFailure>(m_folder.pathOf("no/x") + ": No such file or directory"));
}

TEST_F(OutputFiles, AFullDeviceIsAFailure)
{
    EXPECT_THAT(
        [&] {
            writeOutputs({{"/dev/full", "bytes"}});
        },
        ThrowsMessage<CFailure>("/dev/full: No space left on device"));
}

TEST_F(OutputFiles, AnotherOutputsFailureLeavesTheOldFile)
{
    m_folder.write("x", "old");
    EXPECT_THROW(writeOutputs({{m_folder.pathOf("x"), "new"}, {"/dev/full", "bytes"}}), CFailure);
    EXPECT_THROW(writeOutputs({{m_folder.pathOf("x"), "new"}, {m_folder.pathOf("no/y"), ""}}),
                 CFailure);
    EXPECT_EQ(m_folder.read("x"), "old");
    EXPECT_THAT(m_folder.names(), ElementsAre("x"));
}

TEST_F(OutputFiles, APipeIsWrittenTo)
{
    const std::string pipe = m_folder.pathOf("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    auto reader = std::async(std::launch::async, [&] { return m_folder.read("pipe"); });
    writeOutputs({{pipe, "bytes"}});
    EXPECT_EQ(reader.get(), "bytes");
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(OutputFiles, OnePlaceIsKnownUnderTwoNames)
{
    m_folder.write("x", "");
    fs::create_symlink("x", m_folder.pathOf("link"));
    EXPECT_TRUE(isSamePlace(m_folder.pathOf("x"), m_folder.pathOf("link")));
    EXPECT_TRUE(isSamePlace("/nowhere/x", "/nowhere/x"));
    EXPECT_TRUE(isSamePlace("-", "/dev/stdout"));
    EXPECT_FALSE(isSamePlace("-", m_folder.pathOf("x")));
    EXPECT_FALSE(isSamePlace(m_folder.pathOf("x"), m_folder.pathOf("y")));
}

} // namespace
} // namespace tovangl::program
