// Video diagnosis: profiles, tasks, projects and the server that runs them.
#pragma once

#include "frame/record/Table.h"

#include "orrery/diagnosis.h"

namespace orrery {

extern const record::TypedTable<CFG_DIAGNOSIS_PROFILE_LIST> kDiagnosisProfiles;
extern const record::TypedTable<CFG_DIAGNOSIS_TASK_LIST> kDiagnosisTasks;
extern const record::TypedTable<CFG_DIAGNOSIS_TASK_LIST> kDiagnosisTask;
extern const record::TypedTable<CFG_DIAGNOSIS_PROJECT_LIST> kDiagnosisProjects;
extern const record::TypedTable<CFG_DIAGNOSIS_REALPROJECT_LIST> kDiagnosisRealProjects;
extern const record::TypedTable<CFG_DIAGNOSIS_GLOBAL_LIST> kDiagnosisGlobal;
extern const record::TypedTable<CFG_DIAGNOSIS_CAPS_INFO> kDiagnosisCaps;
extern const record::TypedTable<CFG_DIAGNOSIS_STATE_INFO> kDiagnosisState;

// Whether the caller's descriptor has an array with room.
bool HasDiagnosisEntries(const std::byte* record, std::uint32_t size);
// Whether it also has room for the sources of its first task.
bool HasDiagnosisSources(const std::byte* record, std::uint32_t size);
// Whether it has an array of exactly one task.
bool HasOneDiagnosisTask(const std::byte* record, std::uint32_t size);

} // namespace orrery
