#include "display/Audio.h"

#include "frame/record/SharedCodecs.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kSpeakFormats, kFolded,
      {
          {CFG_SPEAK_PCM, "PCM"},
          {CFG_SPEAK_ADPCM, "ADPCM"},
          {CFG_SPEAK_G711A, "G.711A"},
          {CFG_SPEAK_G711MU, "G.711Mu"},
          {CFG_SPEAK_G726, "G.726"},
          {CFG_SPEAK_G729, "G.729"},
          {CFG_SPEAK_MPEG2, "MPEG2"},
          {CFG_SPEAK_AMR, "AMR"},
          {CFG_SPEAK_AAC, "AAC"},
      });

PART(kSpiritProperty, CFG_AUDIO_SPIRIT_PROPERTY,
     {
         FIELD(nChannel, "Channel", Int),
         FIELD(nPriority, "Priority", Int),
         FIELD(nPreset, "Preset", Int),
     });

PART(kMatrixOutput, CFG_AUDIO_MATRIX_OUTPUT,
     {
         FIELD(nInputCount),
         FIELD(nInputChannel, "InputChannel", Int).Count(AT(nInputCount)),
     });

PART(kMatrix, CFG_AUDIO_MATRIX,
     {
         FIELD(nOutputCount),
         FIELD(stuOutputs, "", Record(kMatrixOutput)).Count(AT(nOutputCount)),
     });

PART(kLowerOutput, CFG_LOWER_MATRIX_OUTPUT,
     {
         FIELD(szName, "Name", Text),
         FIELD(emMode, "Mode", Int),
         FIELD(nInCount),
         FIELD(nIn, "In", Int).Count(AT(nInCount)),
     });

PART(kLowerMatrix, CFG_LOWER_MATRIX,
     {
         FIELD(nOutputCount),
         FIELD(stuOutputs, "", Record(kLowerOutput)).Count(AT(nOutputCount)),
     });

PART(kSpeakProperty, CFG_SPEAK_PROPERTY,
     {
         FIELD(nBitRate, "BitRate", Int),
         FIELD(nSampleBit, "SampleBit", Int),
         FIELD(nSampleRate, "SampleRate", Int),
     });

PART(kSpeakFormat, CFG_SPEAK_FORMAT,
     {
         FIELD(emFormat, "Format", Names(kSpeakFormats)),
         FIELD(nPropertyCount),
         FIELD(stuProperty, "Property", Record(kSpeakProperty)).Count(AT(nPropertyCount)),
     });

} // namespace

TABLE(kAudioSpirit, CFG_AUDIO_SPIRIT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nAudioLimit, "AudioLimit", Int),
          FIELD(nDelayTime, "DelayTime", Int),
          FIELD(nPropertyCount),
          FIELD(stuProperty, "Property", Record(kSpiritProperty)).Count(AT(nPropertyCount)),
          FIELD(nOutCount),
          FIELD(nOut, "Linkage/LowerMatrix/Out", Int).Count(AT(nOutCount)),
      });

TABLE(kAudioMatrices, CFG_AUDIO_MATRIX_INFO,
      {
          FIELD(nMatrixCount),
          FIELD(stuMatrices, "", Record(kMatrix)).Count(AT(nMatrixCount)),
      });

TABLE(kLowerMatrices, CFG_LOWER_MATRIX_INFO,
      {
          FIELD(nMatrixCount),
          FIELD(stuMatrices, "", Record(kLowerMatrix)).Count(AT(nMatrixCount)),
      });

TABLE(kComposeChannel, CFG_COMPOSE_CHANNEL_INFO,
      {
          FIELD(emSplit, "Split", SplitName),
          FIELD(nChannelCount),
          FIELD(nChannels, "ChannelCombination", Int).Count(AT(nChannelCount)),
      });

TABLE(kAudioVolume, CFG_AUDIO_VOLUME_INFO,
      {
          FIELD(nCount),
          FIELD(byVolumes, "", Int).Count(AT(nCount)).AnyShape(),
      });

TABLE(kAudioInput, CFG_AUDIO_INPUT_INFO,
      {
          FIELD(szAudioSource, "AudioSource", Text),
      });

TABLE(kAudioMixChannel, CFG_AUDIO_MIX_CHANNEL_INFO,
      {
          FIELD(nCombinationCount),
          FIELD(nCombination, "Combination", Int).Count(AT(nCombinationCount)),
      });

TABLE(kAudioTouch, CFG_AUDIO_TOUCH_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szInfo, "Info", Text),
          FIELD(nPitch, "Pitch", Int),
      });

TABLE(kSpeakCaps, CFG_SPEAK_CAPS,
      {
          FIELD(nFormatCount),
          FIELD(stuSupportedAudioFormat, "SupportedAudioFormat", Record(kSpeakFormat)).Count(AT(nFormatCount)),
      });

} // namespace orrery
