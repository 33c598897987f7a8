#include "analyse/Templates.h"

#include "analyse/Module.h"
#include "analyse/RuleClasses.h"
#include "analyse/RuleFrame.h"
#include "analyse/Scene.h"
#include "frame/Document.h"
#include "frame/Log.h"
#include "frame/ReplySteps.h"

namespace orrery {

using namespace record;
using json::Value;

namespace {

using Detail = CFG_SCENE_DETAIL_INFO;

// Bytes of a detail that a class fills.
struct Stretch {
    std::size_t begin;
    std::size_t end;
};
constexpr Stretch kCamera{offsetof(Detail, dCameraHeight), offsetof(Detail, stuNearDetectPoint)};
constexpr Stretch kPlateHints{offsetof(Detail, nPlateHintNum), offsetof(Detail, nLightGroupNum)};
constexpr Stretch kFace{offsetof(Detail, bFaceScene), offsetof(Detail, dCameraAngle)};
constexpr Stretch kLandline{offsetof(Detail, dCameraAngle), sizeof(Detail)};
constexpr Stretch kWhole{0, sizeof(Detail)};

void Copy(const Stretch& stretch, const std::byte* from, std::byte* to) noexcept {
    std::memcpy(to + stretch.begin, from + stretch.begin, stretch.end - stretch.begin);
}

void CopyDetail(std::int32_t sceneClass, const std::byte* from, std::byte* to) noexcept {
    switch (sceneClass) {
    case CFG_RULE_CLASS_NORMAL:
    case CFG_RULE_CLASS_NUMBER_STAT:
        Copy(kCamera, from, to);
        Copy(kLandline, from, to);
        break;
    case CFG_RULE_CLASS_TRAFFIC:
        Copy(kWhole, from, to);
        break;
    case CFG_RULE_CLASS_TRAFFIC_PATROL:
        Copy(kPlateHints, from, to);
        break;
    case CFG_RULE_CLASS_FACE_DETECTION:
        Copy(kFace, from, to);
        break;
    default:
        break;
    }
}

// The scene is read whole, and its class settles what of it the template has.
void ReadScene(const Value& params, std::byte* record, ReadCall& call) {
    using Global = CFG_TEMPLATE_GLOBAL_INFO;
    scenes::ReadAreaTypes(params["CalibrateArea"], record + offsetof(Global, stuCalibrateAreas));
    const Value& value = params["Scene"];
    auto* const scene = call.parser.text().arena().Array<std::byte>(sizeof(CFG_ANALYSE_SCENE_INFO));
    if (scene == nullptr) {
        constexpr std::uint32_t kOutOfMemory = 0x80000001;
        LogSetPosition("VideoInAnalyseParse", __LINE__, E_LOG_LEVEL_ERROR);
        LogTrace(kOutOfMemory, "System Error!");
        return;
    }
    if (value.isNull() || !value.isObject()) return;
    std::memset(scene, 0, sizeof(CFG_ANALYSE_SCENE_INFO));
    ReadRecord(kAnalyseScene, value, scene, call);
    CopyDetail(MEMBER(record, Global, nClass), scene + offsetof(CFG_ANALYSE_SCENE_INFO, stuDetail),
               record + offsetof(Global, stuDetail));
}

TABLE(kTemplateGlobal, CFG_TEMPLATE_GLOBAL_INFO,
      {
          FIELD(nCalibrateAreaNum),
          FIELD(stuCalibrateAreas, "CalibrateArea", Record(scenes::kCalibrateArea)).Count(AT(nCalibrateAreaNum)),
          FIELD(nClass, "Scene/Type", Names(kTemplateClasses)),
          FIELD(nPtzPresetId, "Scene/PtzPresetId", Int),
          FIELD(stuDetail, nullptr, Record(kSceneDetail)),
      })
    .AfterRead(ReadScene);

// The reply, when the device did not refuse.
Outcome ReadReply(Document& document, const char* text) noexcept {
    if (const Outcome parsed = document.Parse(text); parsed != Outcome::Done) return parsed;
    return ResultPasses(ResultTest::FalseRefuses, document.root["result"]) ? Outcome::Done : Outcome::Refused;
}

Outcome ReadInto(const Table& table, const Value& value, Document& document, const ParseRequest& request) noexcept {
    ReadCall call{document.parser, document.root};
    if (!value.isNull()) ReadRecord(table, value, static_cast<std::byte*>(request.buffer), call);
    if (!document.arena.failed()) return Outcome::Done;
    std::memset(request.buffer, 0, request.bufferSize);
    return Outcome::OutOfMemory;
}

Outcome ReadGlobal(std::int32_t, const ParseRequest& request) noexcept {
    std::memset(request.buffer, 0, request.bufferSize);
    Document document;
    if (const Outcome read = ReadReply(document, request.text); read != Outcome::Done) return read;
    return ReadInto(kTemplateGlobal, document.root["params"], document, request);
}

Outcome ReadModule(std::int32_t classType, const ParseRequest& request) noexcept {
    std::memset(request.buffer, 0, request.bufferSize);
    Document document;
    if (const Outcome read = ReadReply(document, request.text); read != Outcome::Done) return read;
    return ReadInto(kModule, document.root["params"][TemplateClassName(classType)], document, request);
}

Outcome ReadRules(std::int32_t classType, const ParseRequest& request) noexcept {
    Document document;
    if (const Outcome read = ReadReply(document, request.text); read != Outcome::Done) return read;
    auto* const record = static_cast<std::byte*>(request.buffer);
    // The caller's descriptor keeps its count until all is read.
    auto rules = Load<CFG_ANALYSERULES_INFO>(record);
    rules.nRuleCount = 0;
    const Value& value = document.root["params"][TemplateClassName(classType)];
    if (!value.isNull()) {
        ReadCall call{document.parser, document.root};
        const Outcome outcome = ReadRuleTemplate(value, rules, call);
        if (outcome != Outcome::Done) return outcome;
        if (document.arena.failed()) return Outcome::OutOfMemory;
    }
    SET_MEMBER(record, CFG_ANALYSERULES_INFO, nRuleCount, rules.nRuleCount);
    return Outcome::Done;
}

constexpr TemplateRow kRows[] = {
    {"VideoInAnalyse.getTemplateGlobal", &kTemplateGlobal, false, ReadGlobal},
    {"VideoInAnalyse.getTemplateModule", &kModule, true, ReadModule},
    {"VideoInAnalyse.getTemplateRule", &kAnalyseRules, true, ReadRules},
};

} // namespace

std::span<const TemplateRow> Templates() noexcept {
    return kRows;
}

const TemplateRow* FindTemplate(std::string_view name) noexcept {
    for (const TemplateRow& row : kRows) {
        if (row.name == name) return &row;
    }
    return nullptr;
}

Outcome ParseTemplate(const char* command, std::int32_t classType, const ParseRequest& request) noexcept {
    const TemplateRow* const row = FindTemplate(command);
    if (row == nullptr) return Outcome::UnknownCommand;
    if (request.bufferSize < row->table->size) return Outcome::BufferTooSmall;
    return row->read(classType, request);
}

} // namespace orrery
