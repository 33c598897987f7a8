// Intelligent events: faces, and the known people whom they look like.
#include "events/FaceParts.h"

namespace orrery::events {

using json::Value;

namespace {

PART(kFace, EVENT_FACE_INFO,
     {
         FIELD(nObjectID, "ObjectID", Int),
         FIELD(szObjectType, "ObjectType", Text),
         FIELD(nRelativeID, "nRelativeID", Int),
         FIELD(stuBoundingBox, "BoundingBox", Record(kBox)).AtLeast(4),
         FIELD(stuCenter, "Center", Record(kEventPoint)).AtLeast(2),
     });

// ---- Known people ----

NAMES(kPersonTypes, kFolded,
      {
          {EVENT_PERSON_NORMAL, "Normal"},
          {EVENT_PERSON_SUSPICION, "Suspicion"},
          {EVENT_PERSON_THIEF, "Thief"},
          {EVENT_PERSON_VIP, "VIP"},
          {EVENT_PERSON_FATE_CHECK, "FateCheck"},
          {EVENT_PERSON_STAFF, "Staff"},
      });
NAMES(kCertificates, kFolded,
      {
          {EVENT_CERTIFICATE_IC, "IC"},
          {EVENT_CERTIFICATE_PASSPORT, "Passport"},
      });
NAMES(kGlasses, kFolded,
      {
          {EVENT_GLASSES_SUN_GLASSES, "SunGlasses"},
          {EVENT_GLASSES_GLASSES, "Glasses"},
      });

// A date over three members: year, month, day.
void ReadBirthday(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    static_assert(offsetof(EVENT_PERSON_INFO, byMonth) == offsetof(EVENT_PERSON_INFO, wYear) + 2);
    static_assert(offsetof(EVENT_PERSON_INFO, byDay) == offsetof(EVENT_PERSON_INFO, wYear) + 3);
    static_assert(offsetof(EVENT_PERSON_INFO_EX, byMonth) == offsetof(EVENT_PERSON_INFO_EX, wYear) + 2);
    static_assert(offsetof(EVENT_PERSON_INFO_EX, byDay) == offsetof(EVENT_PERSON_INFO_EX, wYear) + 3);
    NET_TIME date{};
    if (!JsonParser::GetDate(value, &date)) return;
    Store(record + field.offset, static_cast<std::uint16_t>(date.dwYear));
    Store(record + field.offset + 2, static_cast<std::uint8_t>(date.dwMonth));
    Store(record + field.offset + 3, static_cast<std::uint8_t>(date.dwDay));
}
constexpr CustomCodec kBirthday{ReadBirthday};

// A type of the operator's own is kept as it is spelled.
template <class R>
void KeepCustomType(const Value& value, std::byte* record, ReadCall& call) {
    auto& person = *reinterpret_cast<R*>(record);
    if (value["IsCustomType"].asInt() != 1) return;
    call.parser.GetJsonString(value["Type"], person.szCustomType, sizeof person.szCustomType, true);
}

#define EV_PERSON_ROWS                                                                                                 \
    FIELD(szCustomType), FIELD(wYear, "Birthday", Custom(kBirthday)), FIELD(byMonth), FIELD(byDay),                    \
        FIELD(szID, "ID", Text), FIELD(byImportant, "Important", Int), FIELD(bySex, "Sex", Names(kPersonSexes)),       \
        FIELD(nImageNum), FIELD(stuImage, "Image", Record(kPersonImage)).Count(AT(nImageNum)),                         \
        FIELD(byType, "Type", Names(kPersonTypes)), FIELD(byCertificateType, "CertificateType", Names(kCertificates)), \
        FIELD(byGlasses, "Glasses", Int), FIELD(byAge, "Age", Int), FIELD(szProvince, "Province", Text),               \
        FIELD(szCity, "City", Text), FIELD(szName, "Name", Text), FIELD(szUID, "UID", Text),                           \
        FIELD(szCountry, "Country", Text), FIELD(byIsCustomType, "IsCustomType", Int),                                 \
        FIELD(pszComment, "Comment", TextBlock<ORRERY_EVENT_COMMENT>).Owned("Failed to new group comment").Always(),   \
        FIELD(pszGroupID, "GroupID", TextBlock<ORRERY_EVENT_GROUP_ID>).Owned("Failed to new group ID").Always(),       \
        FIELD(pszGroupName, "GroupName", TextBlock<ORRERY_EVENT_GROUP_NAME>)                                           \
            .Owned("Failed to new group name")                                                                         \
            .Always(),                                                                                                 \
        FIELD(pszFeatureValue, "FeatureValue", TextBlock<ORRERY_EVENT_FEATURE_VALUE>)                                  \
            .Owned("Failed to new feature calue")                                                                      \
            .Always(),                                                                                                 \
        FIELD(emEmotion, "Emotion", Names(kFeatures))

PART(kPerson, EVENT_PERSON_INFO,
     {
         EV_PERSON_ROWS,
     })
    .AfterRead(KeepCustomType<EVENT_PERSON_INFO>);
PART(kPersonEx, EVENT_PERSON_INFO_EX,
     {
         EV_PERSON_ROWS,
         FIELD(szHomeAddress, "HomeAddress", Text),
         FIELD(emGlassesType, "GlassesType", Names(kGlasses)),
         EV_FACE_STATES(""),
     })
    .AfterRead(KeepCustomType<EVENT_PERSON_INFO_EX>);

#define EV_CANDIDATE_ROWS(person)                                                                                      \
    FIELD(stuPerson, "Person", Record(person)).Always(), FIELD(bySimilarity, "Similarity", Int),                       \
        FIELD(byRange, "Range", Int), FIELD(stuTime, "Time", NetTime), FIELD(szAddress, "Address", Text),              \
        FIELD(bIsHit, "IsHit", Bool), FIELD(stuSceneImage, "SceneImage", Record(kImage)),                              \
        FIELD(nChannelID, "Channel", Int)

PART(kCandidate, EVENT_CANDIDATE_INFO,
     {
         EV_CANDIDATE_ROWS(kPerson),
     });
PART(kCandidateEx, EVENT_CANDIDATE_INFO_EX,
     {
         EV_CANDIDATE_ROWS(kPersonEx),
         FIELD(szFilePath, "SceneImage/FilePath", Text).ReadOnly(),
     });

} // namespace

TABLE(kFaceDetection, DEV_EVENT_FACEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          FIELD(szAddress, "Address", Text),
          EV_COUNT,
          EV_FACE_PERSON(""),
          FIELD(nFaceNum),
          FIELD(stuFaces, "Faces", Record(kFace)).Count(AT(nFaceNum)),
          EV_CLASS,
          EV_FACE_LOOKS(""),
      });

// Both lists are read from the same key.
TABLE(kFaceRecognition, DEV_EVENT_FACERECOGNITION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          FIELD(nCandidateNum),
          FIELD(stuCandidates, "Candidates", Record(kCandidate)).Count(AT(nCandidateNum)),
          FIELD(stuCandidatesEx, "Candidates", Record(kCandidateEx)),
          EV_ACTION_AND_REPEAT,
          FIELD(bIsGlobalScene, "IsGlobalScene", Bool),
          FIELD(stuSceneImage, "SceneImage", Record(kPersonImage)),
          FIELD(szAddress, "Address", Text),
          EV_COUNT,
          EV_CLASS,
          EV_FACE_PERSON("Face/"),
          EV_FACE_LOOKS("Face/"),
      });

} // namespace orrery::events
