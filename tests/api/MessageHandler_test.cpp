// SPDX-License-Identifier: MIT
#include <tovangl/MessageHandler.h>

#include <QtDebug>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

class EmptyMessageHandler : public ::testing::Test
{
protected:
    EmptyMessageHandler() { qInstallMessageHandler(nullptr); }
    ~EmptyMessageHandler() override { qInstallMessageHandler(nullptr); }
};

std::string messages()
{
    ::testing::internal::CaptureStderr();
    qDebug("debug");
    qWarning("warning");
    qCritical("critical");
    return ::testing::internal::GetCapturedStderr();
}

TEST_F(EmptyMessageHandler, DiscardsEveryMessage)
{
    ASSERT_NE(messages(), "");
    installEmptyMsgHandler();
    EXPECT_EQ(messages(), "");
}

TEST_F(EmptyMessageHandler, IsHarmlessTwice)
{
    installEmptyMsgHandler();
    installEmptyMsgHandler();
    EXPECT_EQ(messages(), "");
}

TEST_F(EmptyMessageHandler, IsNotInstalledByLoadingTheLibrary)
{
    EXPECT_NE(messages(), "");
}

} // namespace
} // namespace tovangl
