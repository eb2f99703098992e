// SPDX-License-Identifier: MIT
#include "process/CMessageSilencer.h"

#include <QtDebug>

#include <atomic>
#include <future>
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

std::atomic<QtMessageHandler> previousHandler{nullptr};
std::atomic<int> seenByChainingHost{0};

// A circle without end is left here, before the stack overflows.
constexpr int kFarTooOften = 100;

void passOnToPrevious(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (++seenByChainingHost < kFarTooOften)
        previousHandler.load()(type, context, message);
}

// A thread that is silent until told otherwise, as if it drew a large picture.
class CSilentThread
{
public:
    CSilentThread()
        : m_thread([this] { beSilent(); })
    {
        m_isSilent.get_future().wait();
    }
    ~CSilentThread()
    {
        m_mayEnd.set_value();
        m_thread.join();
    }
    Q_DISABLE_COPY(CSilentThread)

private:
    void beSilent()
    {
        const CMessageSilencer silencer;
        m_isSilent.set_value();
        m_mayEnd.get_future().wait();
    }

    std::promise<void> m_isSilent;
    std::promise<void> m_mayEnd;
    std::thread m_thread;
};

class MessageSilencer : public ::testing::Test
{
protected:
    MessageSilencer()
    {
        seenByHost = 0;
        seenByLaterHost = 0;
        seenByChainingHost = 0;
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
    {
        const CSilentThread second;
        first.reset();
        qWarning("seen");
    }
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

TEST_F(MessageSilencer, SilencesWhereTheHostHasReplacedTheHandlerMeanwhile)
{
    const CSilentThread drawing;
    qInstallMessageHandler(countForLaterHost);
    const CMessageSilencer silencer;
    qWarning("discarded");
    EXPECT_EQ(seenByLaterHost, 0);
}

TEST_F(MessageSilencer, IsPassedOnceByAHandlerThatPassesOnToIt)
{
    {
        const CSilentThread drawing;
        previousHandler = qInstallMessageHandler(passOnToPrevious);
    }
    const CSilentThread drawingLater;
    qWarning("seen");
    EXPECT_EQ(seenByChainingHost, 1);
    EXPECT_EQ(seenByHost, 1);
}

TEST_F(MessageSilencer, StandsForTheSameHandlerWhenItIsPutBackInALaterRendering)
{
    QtMessageHandler previous = nullptr;
    {
        const CSilentThread drawing;
        previous = qInstallMessageHandler(countForLaterHost);
    }
    const CSilentThread drawingLater;
    qInstallMessageHandler(previous);
    qWarning("seen");
    EXPECT_EQ(seenByHost, 1);
    EXPECT_EQ(seenByLaterHost, 0);
}

TEST_F(MessageSilencer, PutBackAfterAllDrawingStandsForTheHostsHandlerStill)
{
    QtMessageHandler previous = nullptr;
    {
        const CSilentThread drawing;
        previous = qInstallMessageHandler(countForLaterHost);
    }
    qInstallMessageHandler(previous);
    {
        const CMessageSilencer silencer;
    }
    qWarning("seen");
    EXPECT_EQ(seenByHost, 1);
    EXPECT_EQ(seenByLaterHost, 0);
}

TEST_F(MessageSilencer, EndsACircleOfTheHostsHandlers)
{
    previousHandler = passOnToPrevious;
    qInstallMessageHandler(passOnToPrevious);
    const CSilentThread drawing;
    previousHandler = qInstallMessageHandler(passOnToPrevious);
    qWarning("seen");
    EXPECT_LT(seenByChainingHost, kFarTooOften);
}

} // namespace
} // namespace tovangl
