// A JSON-RPC request and the state that its answer leaves.
#pragma once

#include "frame/Lock.h"
#include "frame/Request/HeapText.h"
#include "frame/Request/IPDU.h"

#include <forward_list>
#include <memory>

namespace orrery {

// What a device's answer becomes for some requests: a block of malloc that begins with its kind.
struct ResultBlock {
    static constexpr std::uint32_t kFlat = 281;
    static constexpr std::uint32_t kNested = 290; // a NestedResultBlock

    std::uint32_t kind;
};

struct NestedResultBlock {
    static constexpr std::size_t kBuffers = 4;

    ResultBlock head;
    void* buffers[kBuffers]; // each of malloc, or null
};

class CRequest : public IPDU {
  public:
    // -1 until an answer with a "result" was read, then 0. The slot in which a plain unit tells its sequence number.
    std::int32_t getError() const noexcept { return nError; }
    std::uint32_t getSequence() const noexcept override { return static_cast<std::uint32_t>(getError()); }
    std::uint32_t getFlags() const noexcept override { return nFlags; }
    // Frees a result block with all that it holds. Null is accepted; a block of another kind is left alone.
    virtual void releaseResult(void* result) noexcept { Release(result); }

    std::int32_t nError = -1;
    std::int32_t nResult = -1; // "result" as 0 or 1

  protected:
    std::forward_list<std::unique_ptr<IPDU>> pending_; // sub-items that wait for their turn
    RecursiveLock lock_;

  public:
    std::uint32_t nSessionId = 0; // "session"
    std::uint32_t nObjectId = 0;  // "object"

  protected:
    HeapText strText_; // the last text that was written

  private:
    static void Release(void* result) noexcept;
};

} // namespace orrery
