#include "media/EncodeEncrypt.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

// ---- "EncodeEncrypt" ----

NAMES(kTypes, kExact.Unknown(CFG_ENCRYPT_UNKNOWN),
      {
          {CFG_ENCRYPT_AES, "AES"},
      });

NAMES(kModes, kExact.Unknown(CFG_ENCRYPT_MODE_UNKNOWN),
      {
          {CFG_ENCRYPT_ECB, "ECB"},
          {CFG_ENCRYPT_CBC, "CBC"},
          {CFG_ENCRYPT_CFB, "CFB"},
          {CFG_ENCRYPT_OFB, "OFB"},
      });

// Devices name ciphers and modes from one list, in which the modes stand one place behind their codes.
NAMES(kWrittenTypes, kExact.OutsideWrites("UnKnown"),
      {
          {0, "AES"},
          {1, "ECB"},
          {2, "CBC"},
          {3, "CFB"},
          {4, "OFB"},
          {5, "UnKnown"},
      });
NAMES(kWrittenModes, kExact.OutsideWrites("UnKnown"),
      {
          {-1, "AES"},
          {0, "ECB"},
          {1, "CBC"},
          {2, "CFB"},
          {3, "OFB"},
          {4, "UnKnown"},
      });

// A key says something only to a cipher that is known, and "Type" comes behind "Key" in the text.
void ReadKey(const json::Value& item, std::byte* record, ReadCall& call) {
    if (MEMBER(record, CFG_ENCRYPT_ITEM, emType) != CFG_ENCRYPT_AES) return;
    call.parser.GetJsonStringIfPresent(item["Key"], reinterpret_cast<char*>(record + offsetof(CFG_ENCRYPT_ITEM, szKey)),
                                       sizeof(CFG_ENCRYPT_ITEM::szKey));
}

PART(kEncryptItem, CFG_ENCRYPT_ITEM,
     {
         FIELD(bEncryptEnable, "EncryptEnable", Bool),
         FIELD(emType, "Type", Names(kTypes)).ReadOnly(),
         FIELD(emType, "Type", Names(kWrittenTypes)).WriteOnly().Alias(),
         FIELD(emMode, "Mode", Names(kModes)).ReadOnly(),
         FIELD(emMode, "Mode", Names(kWrittenModes)).WriteOnly().Alias(),
         FIELD(nLength, "Length", UInt),
         FIELD(szKey, "Key", Text).WriteOnly(),
         FIELD(stuTime, "Time", Record(kNetTimeV2)),
     })
    .AfterRead(ReadKey);

// ---- "NvrEncrypt" ----

PART(kNvrEncryptItem, CFG_NVR_ENCRYPT_ITEM,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(bMatchNvrEnable, "MatchNvrEnable", Bool),
         FIELD(szNvrAddress, "NvrAddress", Text),
         FIELD(nMatchPort, "MatchPort", Int),
         FIELD(nTalkPort, "TalkPort", Int),
         FIELD(szDevId, "DevID", Text),
     });

// The reply tells one channel, that of the first record.
void ReadNvrChannel(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    if (call.index == 0) SET_MEMBER(record, CFG_NVR_ENCRYPT_INFO, nChannel, value.asInt());
}

constexpr CustomCodec kNvrChannel{ReadNvrChannel, nullptr};

bool HasItems(const std::byte* record) {
    return MEMBER(record, CFG_NVR_ENCRYPT_INFO, nCount) != 0;
}

} // namespace

Form NvrEncryptForm(const std::byte* first, std::uint32_t count) {
    if (count != 1) return Form::Nothing;
    return MEMBER(first, CFG_NVR_ENCRYPT_INFO, nChannel) == -1 ? Form::Array : Form::One;
}

TABLE(kEncodeEncrypt, CFG_ENCODE_ENCRYPT_INFO,
      {
          FIELD(nChannel, "params/channel", Int).FromRoot().Always(),
          FIELD(pstuItems, "", Record(kEncryptItem))
              .Capacity(AT(nMaxCount))
              .Count(AT(nReturnCount))
              .NullElement(Nulls::Stop)
              .WritesCapacity(),
          FIELD(nMaxCount),
          FIELD(nReturnCount),
      });

TABLE(kNvrEncrypt, CFG_NVR_ENCRYPT_INFO,
      {
          FIELD(nChannel, "params/channel", Custom(kNvrChannel)).FromRoot().Always(),
          FIELD(nCount),
          FIELD(stuItems, "", Record(kNvrEncryptItem)).Count(AT(nCount)).AnyShape(),
      })
    .Writes(HasItems);

} // namespace orrery
