// SPDX-License-Identifier: MIT
#include "api/CMessageSilencer.h"

#include <QtDebug>

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace tovangl {
namespace {

std::atomic<int> seenByHost{0};
std::atomic<int> seenByLaterHost{0};

void countForHost(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++seenByHost;
}

void countForLaterHost(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++seenByLaterHost;
}

class MessageSilencer : public ::testing::Test
{
protected:
    MessageSilencer()
    {
        seenByHost = 0;
        seenByLaterHost = 0;
        qInstallMessageHandler(countForHost);
    }
    ~MessageSilencer() override { qInstallMessageHandler(nullptr); }
};

TEST_F(MessageSilencer, DiscardsTheMessagesOfItsThread)
{
    const CMessageSilencer silencer;
    qWarning("discarded");
    EXPECT_EQ(seenByHost, 0);
}

TEST_F(MessageSilencer, LeavesTheHostsHandlerInForceAfterwards)
{
    {
        const CMessageSilencer silencer;
    }
    qWarning("seen");
    EXPECT_EQ(seenByHost, 1);
}

TEST_F(MessageSilencer, LeavesTheMessagesOfOtherThreadsToTheHost)
{
    const CMessageSilencer silencer;
    std::thread([] { qWarning("seen"); }).join();
    EXPECT_EQ(seenByHost, 1);
}

TEST_F(MessageSilencer, Nests)
{
    const CMessageSilencer outer;
    {
        const CMessageSilencer inner;
    }
    qWarning("discarded");
    EXPECT_EQ(seenByHost, 0);
}

TEST_F(MessageSilencer, OutlivedByOneInAnotherThreadStillEnds)
{
    auto first = std::make_unique<CMessageSilencer>();
    std::atomic<bool> isInside{false};
    std::atomic<bool> mayEnd{false};
    std::thread other([&] {
        const CMessageSilencer second;
        isInside = true;
        while (!mayEnd)
            std::this_thread::yield();
    });
    while (!isInside)
        std::this_thread::yield();
    first.reset();
    qWarning("seen");
    mayEnd = true;
    other.join();
    qWarning("seen");
    EXPECT_EQ(seenByHost, 2);
}

TEST_F(MessageSilencer, LeavesAHandlerThatTheHostInstalledMeanwhile)
{
    {
        const CMessageSilencer silencer;
        qInstallMessageHandler(countForLaterHost);
    }
    qWarning("seen");
    EXPECT_EQ(seenByLaterHost, 1);
    EXPECT_EQ(seenByHost, 0);
}

} // namespace
} // namespace tovangl
