#include "frame/Request/CRequest.h"

namespace orrery {

void CRequest::Release(void* result) noexcept {
    if (result == nullptr) return;
    switch (static_cast<const ResultBlock*>(result)->kind) {
    case ResultBlock::kNested:
        for (void*& buffer : static_cast<NestedResultBlock*>(result)->buffers) {
            std::free(buffer);
            buffer = nullptr;
        }
        std::free(result);
        break;
    case ResultBlock::kFlat:
        std::free(result);
        break;
    default:
        break;
    }
}

} // namespace orrery
