#include "frame/Request/CRequest.h"

#include "frame/Request/COperation.h"
#include "support/FailingAllocator.h"

#include <gtest/gtest.h>

#include <cstring>

namespace orrery {
namespace {

class Unit : public IPDU {
  public:
    explicit Unit(int& deaths) : deaths_(deaths) {}
    ~Unit() override { ++deaths_; }
    const char* serialize(std::size_t& length) noexcept override {
        length = 0;
        return nullptr;
    }
    std::int32_t deserialize(const char*, std::size_t) noexcept override { return 0; }

  private:
    int& deaths_;
};

class Request : public CRequest {
  public:
    const char* serialize(std::size_t& length) noexcept override {
        length = 0;
        return nullptr;
    }
    std::int32_t deserialize(const char*, std::size_t) noexcept override { return 1; }
    bool LocksTwice() {
        const std::scoped_lock outer(lock_);
        const std::unique_lock inner(lock_, std::try_to_lock);
        return inner.owns_lock() && pending_.empty() && strText_.size() == 0;
    }
};

TEST(IPDU, FieldsStartAtZero) {
    int deaths = 0;
    {
        Unit unit(deaths);
        EXPECT_EQ(unit.nRequestType, 0u);
        EXPECT_EQ(unit.nPacketId, 0u);
        unit.nSequence = 7;
        unit.nFlags = 9;
        EXPECT_EQ(unit.getSequence(), 7u);
        EXPECT_EQ(unit.getFlags(), 9u);
    }
    EXPECT_EQ(deaths, 1);
}

// Under the common C++ ABI a pointer to a virtual member holds one more than the slot's distance from the first; on Arm
// the one stands beside it.
#if defined(__aarch64__)
constexpr std::ptrdiff_t kMark = 0;
#else
constexpr std::ptrdiff_t kMark = 1;
#endif
template <class Member>
std::size_t SlotOf(Member member) {
    std::ptrdiff_t address = 0;
    std::memcpy(&address, &member, sizeof address);
    return static_cast<std::size_t>(address - kMark) / sizeof(void*);
}

TEST(IPDU, OperationsStandInTheirSlots) {
    // The destructor takes the first two.
    EXPECT_EQ(SlotOf(&IPDU::serialize), 2u);
    EXPECT_EQ(SlotOf(&IPDU::deserialize), 3u);
    EXPECT_EQ(SlotOf(&IPDU::getSequence), 4u);
    EXPECT_EQ(SlotOf(&IPDU::getFlags), 5u);
    EXPECT_EQ(SlotOf(&CRequest::releaseResult), 6u);
}

TEST(CRequest, NothingWasReadYet) {
    Request request;
    EXPECT_EQ(request.getError(), -1);
    EXPECT_EQ(request.nResult, -1);
    EXPECT_EQ(request.nSessionId, 0u);
    EXPECT_EQ(request.nObjectId, 0u);
    request.nFlags = 3;
    EXPECT_EQ(request.getFlags(), 3u);
    EXPECT_TRUE(request.LocksTwice());
    request.nError = 0;
    request.nSequence = 8;
    EXPECT_EQ(static_cast<IPDU&>(request).getSequence(), 0u) << "a request tells its error there";
}

TEST(CRequest, FreesResultsOfBothKinds) {
    test::HeapWatch heap;
    Request request;
    request.releaseResult(nullptr);
    auto* const flat = static_cast<ResultBlock*>(std::malloc(100));
    flat->kind = 281;
    request.releaseResult(flat);
    EXPECT_EQ(heap.liveBlocks(), 0);

    auto* const nested = static_cast<NestedResultBlock*>(std::malloc(sizeof(NestedResultBlock)));
    nested->head.kind = 290;
    for (std::size_t i = 0; i < NestedResultBlock::kBuffers; ++i)
        nested->buffers[i] = i == 2 ? nullptr : std::malloc(10);
    request.releaseResult(nested);
    EXPECT_EQ(heap.liveBlocks(), 0);
}

TEST(CRequest, LeavesBlocksOfOtherKindsAlone) {
    ResultBlock block{282};
    Request request;
    request.releaseResult(&block);
    EXPECT_EQ(block.kind, 282u);
}

TEST(COperation, OwnsItsRequest) {
    int deaths = 0;
    {
        COperation operation;
        EXPECT_EQ(operation.dwWords[0], 0u);
        EXPECT_EQ(operation.dwWords[1], 0u);
        EXPECT_EQ(operation.dwWordCount, 0u);
        EXPECT_EQ(operation.pRequest, nullptr);
        operation.pRequest = std::make_unique<Unit>(deaths);
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

} // namespace
} // namespace orrery
