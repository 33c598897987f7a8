// A holder of one request object during an operation of several steps.
#pragma once

#include "frame/Request/IPDU.h"

#include <memory>

namespace orrery {

class COperation {
  public:
    COperation() noexcept = default;
    COperation(const COperation&) = delete;
    COperation& operator=(const COperation&) = delete;
    // The request dies with the operation.
    virtual ~COperation() = default;

    std::uint32_t dwWords[2] = {};
    std::uint32_t dwWordCount = 0;
    std::unique_ptr<IPDU> pRequest;
};

} // namespace orrery
