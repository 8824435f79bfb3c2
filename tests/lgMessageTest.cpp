#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <base/lgMajorGroup.h>
#include <base/lgMessage.h>

namespace {

using Qn::LgLog;
using Qn::LgQueue;
using Qn::LgTypes;

LgQueue& testQueue() {
    static LgQueue queue(9);
    return queue;
}

// Installs testQueue as the caller's queue and a group "Msg" at Warning.
class LgMessageTest : public ::testing::Test {
  protected:
    void SetUp() override {
        _previous = LgLog::setQueueFunction(&testQueue);
        Qn::LgMajorGroup::initialize("Msg=Warning");
    }
    void TearDown() override {
        drain();
        Qn::LgMajorGroup::finalize();
        LgLog::setQueueFunction(_previous);
    }

    static std::vector<std::string> drain() {
        std::vector<std::string> out;
        char text[Qn::LgStream::BufSize];
        LgQueue& q = testQueue();
        while (!q.isEmpty()) {
            if (q.readEntry().isOverflowEntry()) {
                out.push_back("lost " + std::to_string(q.takeOverflowCount()));
            } else {
                q.getStream() >> text;
                out.push_back(LgTypes::getLevelName(q.readEntry().getLevel()) + std::string(": ") +
                              text);
            }
            q.removeEntry();
        }
        return out;
    }

  private:
    LgLog::QueueFunction _previous = nullptr;
};

TEST_F(LgMessageTest, LogsInOneStatementEvaluatesNothingWhenDisabledAndCountsWhenFull) {
    const Qn::LgMinorGroup group(Qn::LgMajorGroup::getInstanceForName("Msg"), "Msg.sub");
    int evaluated = 0;
    auto operand = [&evaluated] { return ++evaluated; };

    QN_LOG(group, LgTypes::Informational) << "hidden " << operand();
    if (evaluated > 0)
        QN_LOG(group, LgTypes::Error) << "not taken";
    else
        QN_LOG(group, LgTypes::Warning) << "value " << operand() << ", " << 2.5;
    EXPECT_EQ(evaluated, 1);
    EXPECT_EQ(drain(), std::vector<std::string>{"Warning: value 1, 2.500000"});

    for (uint32_t i = 0; i < LgQueue::getMaxSize() - 1; ++i) QN_LOG(group, LgTypes::Error) << i;
    QN_LOG(group, LgTypes::Error) << "lost";
    QN_LOG(group, LgTypes::Error) << "lost";
    const std::vector<std::string> lines = drain();
    EXPECT_EQ(lines.front(), "Error: 0");
    EXPECT_EQ(lines.back(), "lost 2");

    {
        Qn::LgMessage message(LgTypes::Tracing);
        ASSERT_TRUE(message.isReserved());
        for (int v : {1, 2, 3}) message << v << ' ';
    }
    EXPECT_EQ(drain(), std::vector<std::string>{"Tracing: 1 2 3 "});
}

}  // namespace
