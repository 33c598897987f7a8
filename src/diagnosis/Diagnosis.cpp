#include "diagnosis/Diagnosis.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

// Members that all descriptors have in the same places.
using List = CFG_DIAGNOSIS_LIST_INFO;
template <class R>
inline constexpr bool kIsList = sizeof(R) == 16 && offsetof(R, nMax) == offsetof(List, nMax)
                                && offsetof(R, pEntries) == offsetof(List, pEntries);
static_assert(kIsList<CFG_DIAGNOSIS_PROFILE_LIST> && kIsList<CFG_DIAGNOSIS_TASK_LIST>);
static_assert(kIsList<CFG_DIAGNOSIS_PROJECT_LIST> && kIsList<CFG_DIAGNOSIS_REALPROJECT_LIST>);
static_assert(kIsList<CFG_DIAGNOSIS_GLOBAL_LIST>);

bool HasTourProject(const std::byte* entry) {
    return MEMBER(entry, CFG_DIAGNOSIS_GLOBAL_ENTRY, bTourProject) == 1;
}
bool HasRealTimeProject(const std::byte* entry) {
    return MEMBER(entry, CFG_DIAGNOSIS_GLOBAL_ENTRY, bRealTimeProject) == 1;
}

PART(kGlobalEntry, CFG_DIAGNOSIS_GLOBAL_ENTRY,
     {
         FIELD(bTourProject),
         FIELD(szTourProject, "TourProject", Text).SetsAndNeeds(AT(bTourProject)).WriteIf(HasTourProject),
         FIELD(bRealTimeProject),
         FIELD(szRealTimeProject, "RealTimeProject", Text)
             .SetsAndNeeds(AT(bRealTimeProject))
             .WriteIf(HasRealTimeProject),
     });

} // namespace

bool HasDiagnosisEntries(const std::byte* record, std::uint32_t) {
    return MEMBER(record, List, pEntries) != nullptr && MEMBER(record, List, nMax) > 0;
}

bool HasDiagnosisSources(const std::byte* record, std::uint32_t size) {
    if (!HasDiagnosisEntries(record, size)) return false;
    const auto* const task = reinterpret_cast<const std::byte*>(MEMBER(record, CFG_DIAGNOSIS_TASK_LIST, pEntries));
    return MEMBER(task, CFG_DIAGNOSIS_TASK, pSources) != nullptr && MEMBER(task, CFG_DIAGNOSIS_TASK, nSourceMax) > 0;
}

bool HasOneDiagnosisTask(const std::byte* record, std::uint32_t size) {
    return HasDiagnosisEntries(record, size) && MEMBER(record, List, nMax) == 1;
}

TABLE(kDiagnosisGlobal, CFG_DIAGNOSIS_GLOBAL_LIST,
      {
          FIELD(nMax),
          FIELD(nReturned),
          FIELD(pEntries, "", Record(kGlobalEntry)).Capacity(AT(nMax)).Count(AT(nReturned)),
      });

TABLE(kDiagnosisCaps, CFG_DIAGNOSIS_CAPS_INFO,
      {
          FIELD(nTypeNum),
          FIELD(szTypes, "SupportedType", Text).Count(AT(nTypeNum)),
          FIELD(nMaxProfiles, "MaxProfiles", Int),
          FIELD(nMaxTasks, "MaxTasks", Int),
          FIELD(nMaxSourcesOfTask, "MaxSourcesOfTask", Int),
          FIELD(nMaxProjects, "MaxProjects", Int),
      });

TABLE(kDiagnosisState, CFG_DIAGNOSIS_STATE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bRunning, "Running", Bool),
          FIELD(szCurrentProject, "CurrentProject", Text),
          FIELD(szCurrentTask, "CurrentTask", Text),
          FIELD(szCurrentProfile, "CurrentProfile", Text),
          FIELD(nSourceCountOfCurrentTask, "SourceCountOfCurrentTask", Int),
          FIELD(nIndexOfCurrentSource, "IndexOfCurrentSource", Int),
          FIELD(stuCurrentTimeSection, "CurrentTimeSection", TimeSection),
          FIELD(nTaskCountOfCurrentProject, "TaskCountOfCurrentProject", Int),
          FIELD(nIndexOfCurrentTask, "IndexOfCurrentTask", Int),
      });

} // namespace orrery
