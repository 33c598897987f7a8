// Request objects. The input: one byte for the kind of request and what its caller hands over, one for how much of it.
// Then the answer's text; what follows its terminator chooses the circumstances. For the splitting of texts the
// separator stands in front of the text, as many bytes as the second byte says.
#include "Circumstances.h"
#include "frame/Request/COperation.h"
#include "frame/Request/CReqConfig.h"
#include "frame/Request/CStrParse.h"
#include "network/Multicast.h"
#include "support/CommandCalls.h"
#include "support/FuzzInput.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

using namespace orrery;

namespace {

constexpr std::uint8_t kNoPayload = 200; // from here on the request has none

enum Way : std::uint8_t { kDelete, kNames, kTable, kOther, kSplit, kWays };

// A text whose memory ends with its terminator.
class Text {
  public:
    explicit Text(std::string_view text) : block_(text.size() + 1, 0) {
        if (!text.empty()) std::memcpy(block_.get(), text.data(), text.size());
        block_.get()[text.size()] = std::byte{0};
    }
    const char* get() const { return reinterpret_cast<const char*>(block_.get()); }

  private:
    test::FuzzBlock block_;
};

// The names of a configuration's members, into buffers of many sizes.
struct Names {
    explicit Names(std::uint8_t amount) : list(amount % 40u) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            // Sizes that say nothing, buffers that are not there, and 0 to 16 bytes.
            const std::int32_t size = i % 7 == 5 ? -1 : static_cast<std::int32_t>((i * 5 + amount) % 17);
            buffers.emplace_back(static_cast<std::size_t>(std::max(size, 0)), 0);
            list[i] = {0, i % 7 == 6 ? nullptr : reinterpret_cast<char*>(buffers.back().get()), size};
            sizes.push_back(size);
        }
        payload.pNames = amount >= 128 ? nullptr : list.data();
        payload.nMaxCount = amount == 127 ? -1 : static_cast<std::int32_t>(list.size());
    }
    void Check() const {
        if (payload.nRetCount < 0 || payload.nRetCount > std::max(payload.nMaxCount, 0)) std::abort();
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i].nBufferSize > sizes[i]) std::abort();
        }
    }

    std::vector<CFG_MEMBER_NAME> list;
    std::vector<test::FuzzBlock> buffers;
    std::vector<std::int32_t> sizes;
    CFG_MEMBER_NAMES payload{};
};

void Ask(CReqConfig& request, const fuzz::Circumstances& around) {
    std::size_t length = 1;
    const char* const text = request.serialize(length);
    if (text == nullptr) {
        if (!around.memoryFailed()) std::abort();
    } else if (std::strlen(text) != length || !test::FlawOf({text, length}).empty()) {
        std::abort();
    }
}

// Twice: an answer may follow another.
void Answer(CReqConfig& request, const char* text, const fuzz::Circumstances& around) {
    for (int turn = 0; turn < 2; ++turn) {
        request.deserialize(text, 0);
        if (request.outOfMemory() && !around.memoryFailed()) std::abort();
        if (request.getError() != 0 && request.getError() != -1) std::abort();
    }
}

void Split(const char* text, const char* separator, bool trims) {
    CStrParse parse("a:b", ":");
    parse.bTrim = trims;
    parse.setSeparator(separator);
    parse.setText(text);
    std::size_t total = 0;
    for (std::int32_t i = 0; i < parse.getCount(); ++i) {
        total += std::strlen(parse.getItem(i));
        parse.getInt(i);
    }
    if (parse.getCount() > 0 && total > std::max<std::size_t>(std::strlen(text), 3)) std::abort();
    if (std::string_view(parse.getItem(parse.getCount())) != CStrParse::strFault) std::abort();
    if (std::string_view(parse.getItem(-1)) != CStrParse::strFault) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::FuzzInput input(data, size);
    const auto choices = input.Take<std::uint8_t>();
    const auto amount = input.Take<std::uint8_t>();
    const auto way = static_cast<Way>(choices % kWays);
    const std::string_view prefix = way == kSplit ? input.Skip(amount % 8u) : std::string_view();
    std::string_view source;
    const fuzz::Choice choice = fuzz::ChoiceBehind(input.Rest(), source);
    const Text text(source);
    const Text separator(prefix);
    Names names(amount);
    CFG_DELETE_PARAM deleted{amount % 5 == 0 ? nullptr : text.get(), 0};
    names.payload.szName = deleted.szName;
    // The record has a third of a megabyte.
    const bool hasRecord = way == kTable && choices < kNoPayload;
    const test::FuzzBlock record(hasRecord ? sizeof(CFG_MULTICAST_INFO) : 0, amount % 8);
    if (hasRecord) test::CallerMemory().PrepareRecord(kMulticast, record.get());

    fuzz::Circumstances around(choice);
    if (way == kSplit) {
        Split(text.get(), separator.get(), amount < 128);
    } else {
        CReqConfig request;
        request.nPacketId = amount;
        constexpr std::uint32_t kTypes[] = {CReqConfig::kDeleteConfig, CReqConfig::kGetMemberNames,
                                            CReqConfig::kTableReply, 0};
        request.nRequestType = kTypes[way];
        void* const payloads[] = {&deleted, &names.payload, record.get(), record.get()};
        if (choices < kNoPayload) request.pPayload = payloads[way];
        if (amount != 255) request.pTable = &kMulticast;
        Ask(request, around);
        Answer(request, text.get(), around);
        names.Check();
    }
    if (!around.Calm()) std::abort();
    return 0;
}
