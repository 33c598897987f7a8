#include "bench/Members.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"
#include "support/TableText.h"

#include "orrery/explain.h"
#include "orrery/orrery.h"

#include <cstdio>
#include <cstring>

#include <rapidjson/writer.h>

namespace orrery::bench {

namespace {

constexpr unsigned kVariants = 12;
constexpr std::size_t kRecords = 4;

constexpr double kFifth = 5; // of the commands that clients write most

constexpr MemberRow kRows[] = {
    {"Email"},
    {"HeatImagingThermometry"},
    {"ParkingSpaceLightGroup"},
    {"ThermometryRule"},
    {"SCADADev", 2},
    {"CommGlobal", 1, 8},
    {"AccessControl", 1, 4, kFifth},
    {"VideoTalkPhoneBasic"},
    {"DevList"},
    {"ShortcutCall"},
    {"SceneMode"},
    {"PSTNTestPlan"},
    {"LaserDistMeasure"},
    {"NTP"},
    {"AirCondition"},
    {"videoStatServer.getSummary"},
    {"RemoteChannel"},
    {"RemoteDevice", 64, 4, kFifth},
    {"VideoInOptions", 1, 4, kFifth},
    {"VideoInBacklight"},
    {"VideoInDefog"},
    {"PtzAutoMovement"},
    {"PtzPreset"},
    {"ptz.getCurrentProtocolCaps"},
    {"DspEncodeCap"},
    {"encode.getCaps"},
    {"VideoDiagnosisProfile", 1, 64},
    {"VideoWidget"},
    {"MonitorWallCollection", 1, 8},
    {"ChannelTitle"},
    {"VideoOut"},
    {"VideoColor"},
    {"VideoOutputComposite"},
    {"MonitorWall", 1, 8},
    {"MonitorTour"},
    {"MonitorCollection"},
    {"DisplaySource"},
    {"RecordSource"},
    {"RecordDownloadSpeed"},
    {"VideoAnalyseGlobal", 1, 2, kFifth},
    {"TrafficGlobal", 1, 4},
    {"TrafficSnapshotNew", 1, 2},
    {"Record"},
    {"RecordStoragePoint"},
    {"StorageGroup", 1, 64},
    {"RaidGroup"},
    {"NAS"},
    {"devVideoAnalyse.getCaps", 1, 4},
    {"VideoInAnalyseRule", 1, 8},
};

const Command& CommandNamed(const char* name) {
    const Command* const command = FindCommand(name);
    if (command == nullptr) {
        std::fprintf(stderr, "bench: there is no command \"%s\"\n", name);
        std::abort();
    }
    return *command;
}

// Blanks where devices put them.
std::string AsDevicesWrite(const std::string& compact) {
    std::string text;
    bool quoted = false;
    for (std::size_t i = 0; i < compact.size(); ++i) {
        const char c = compact[i];
        if (quoted && c == '\\') text += compact[i++];
        if (c == '"') quoted = !quoted;
        if (quoted || c == '"')
            text += compact[i];
        else if (c == ':')
            text += " : ";
        else if (c == ',')
            text += ", ";
        else if (c == '{' || c == '[')
            (text += c) += ' ';
        else if (c == '}' || c == ']')
            (text += ' ') += c;
        else
            text += c;
    }
    return text;
}

// Builds as a client would: keys and texts by reference, nodes from the document's pool.
byhand::Value Build(const rapidjson::Value& from, byhand::Pool& pool) {
    byhand::Value value;
    if (from.IsObject()) {
        value.SetObject();
        for (const auto& member : from.GetObject()) {
            value.AddMember(rapidjson::StringRef(member.name.GetString(), member.name.GetStringLength()),
                            Build(member.value, pool), pool);
        }
    } else if (from.IsArray()) {
        value.SetArray();
        value.Reserve(from.Size(), pool);
        for (const auto& element : from.GetArray())
            value.PushBack(Build(element, pool), pool);
    } else if (from.IsString()) {
        value.SetString(rapidjson::StringRef(from.GetString(), from.GetStringLength()));
    } else {
        value.CopyFrom(from, pool);
    }
    return value;
}

} // namespace

std::span<const MemberRow> MemberRows() {
    return kRows;
}

MemberBench::MemberBench(const MemberRow& row)
    : name(row.command), packs(CommandNamed(row.command).packs()), packBar(row.packBar),
      command_(CommandNamed(row.command)), memory_(row.most) {
    size_ = command_.table->size * row.records;
    buffer_ = std::make_unique<std::byte[]>(size_);
    memory_.PrepareBuffer(command_, buffer_.get(), size_);
    std::size_t longest = 0;
    for (unsigned i = 0; i < kVariants; ++i) {
        test::JsonTree tree = test::ReplyTree(command_, {.seed = i + 1, .most = row.most, .records = row.records});
        tree.Sort();
        texts.push_back(AsDevicesWrite(tree.Text()));
        padded_.emplace_back(texts.back());
        longest = std::max(longest, texts.back().size());
    }
    for (std::size_t i = 0; i < kVariants; ++i) {
        rooms_.emplace_back();
        if (Parse(i)) AddRooms(*command_.table, buffer_.get(), rooms_.back());
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        isClean = isClean && Findings(i) == 0;
    room_ = 2 * longest + 4096;
    packed_ = std::make_unique<char[]>(room_);
    if (!packs) return;
    for (std::size_t i = 0; i < kRecords; ++i) {
        kept_.push_back(std::make_unique<std::byte[]>(size_));
        keptMemory_.push_back(std::make_unique<test::CallerMemory>(row.most));
        keptMemory_.back()->PrepareBuffer(command_, kept_.back().get(), size_);
        static_cast<void>(CLIENT_ParseData(name, texts[i].c_str(), kept_.back().get(), size_, nullptr));
        due_.push_back(std::make_unique<rapidjson::Document>());
        if (Pack(i)) due_.back()->Parse(packed_.get());
    }
}

// What the items that a text filled took of their rooms.
void MemberBench::AddRooms(const record::Table& table, std::byte* record, std::vector<std::span<std::byte>>& rooms) {
    const PackedItems* const items = BareItemsBehind(table);
    for (const record::Field& field : table) {
        if (field.cell == record::Cell::Record && field.table->hasPointers) {
            for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
                AddRooms(*field.table, record + field.offset + std::size_t{i} * field.elementSize, rooms);
        }
        if (items == nullptr || field.offset != items->pointer || field.size == 0) continue;
        const auto bytes = record::LoadSlot(items->count, record) * record::LoadSlot(items->size, record);
        if (bytes > 0)
            rooms.emplace_back(record::Load<std::byte*>(record + items->pointer), static_cast<std::size_t>(bytes));
    }
}

bool MemberBench::Parse(std::size_t i) {
    uint32_t length = 0;
    const bool done = CLIENT_ParseData(name, texts[i].c_str(), buffer_.get(), size_, &length) != 0;
    benchmark::ClobberMemory();
    return done;
}

std::int32_t MemberBench::Findings(std::size_t i) const {
    const auto take = [](const ORRERY_FINDING*, void*) -> int32_t { return 1; };
    return ORRERY_ExplainReply(name, texts[i].data(), texts[i].size(), 0, take, nullptr);
}

bool MemberBench::Explain(std::size_t i) {
    return Findings(i) >= 0;
}

bool MemberBench::Clear(std::size_t i) {
    // What a call clears, so that pointers of the caller's own stay, and the size that its first record begins
    // with.
    if (test::HasPointers(*command_.table)) {
        if (command_.parseFrame.parsed != nullptr) command_.parseFrame.parsed(buffer_.get());
        for (const std::span<std::byte> room : rooms_[i])
            std::memset(room.data(), 0, room.size());
    } else {
        std::uint32_t word;
        std::memcpy(&word, buffer_.get(), sizeof word);
        std::memset(buffer_.get(), 0, size_);
        if (command_.parseFrame.stride != Stride::Record) std::memcpy(buffer_.get(), &word, sizeof word);
    }
    benchmark::ClobberMemory();
    return true;
}

bool MemberBench::ParseTextAndClear(std::size_t i) {
    Clear(i);
    byhand::LocalDocument document;
    document->Parse(texts[i].c_str());
    benchmark::DoNotOptimize(document);
    return !document->HasParseError();
}

bool MemberBench::ParseSimdJsonAndClear(std::size_t i) {
    Clear(i);
    simdjson::dom::element root;
    const auto error = parser_.parse(padded_[i]).get(root);
    benchmark::DoNotOptimize(root);
    return error == simdjson::SUCCESS;
}

bool MemberBench::Pack(std::size_t i) {
    // Where nothing is written behind the text, clearing is the client's.
    if (command_.packFrame.capacity == Capacity::Bare) std::memset(packed_.get(), 0, room_);
    const bool done = CLIENT_PacketData(name, kept_[i].get(), size_, packed_.get(), static_cast<uint32_t>(room_)) != 0;
    benchmark::ClobberMemory();
    return done;
}

bool MemberBench::WriteAndClear(std::size_t i) {
    byhand::LocalDocument document;
    static_cast<byhand::Value&>(*document) = Build(*due_[i], document->GetAllocator());
    rapidjson::StringBuffer out;
    byhand::Write(*document, out);
    benchmark::DoNotOptimize(out.GetString());
    std::memset(packed_.get(), 0, room_);
    benchmark::ClobberMemory();
    return true;
}

bool MemberBench::ClearText(std::size_t) {
    std::memset(packed_.get(), 0, room_);
    benchmark::ClobberMemory();
    return true;
}

bool MemberBench::IsGood() {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (Parse(i) && ParseTextAndClear(i) && ParseSimdJsonAndClear(i)) continue;
        std::fprintf(stderr, "%s: text %zu is not read\n%s\n", name, i, texts[i].c_str());
        return false;
    }
    for (std::size_t i = 0; i < records(); ++i) {
        if (Pack(i) && !due_[i]->HasParseError() && !due_[i]->IsNull()) continue;
        std::fprintf(stderr, "%s: record %zu is not packed\n", name, i);
        return false;
    }
    return true;
}

} // namespace orrery::bench
