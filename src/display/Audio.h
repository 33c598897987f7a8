// Where sound comes from, where it goes and how loud it is.
#pragma once

#include "frame/record/Table.h"

#include "orrery/audio.h"

namespace orrery {

extern const record::TypedTable<CFG_AUDIO_SPIRIT_INFO> kAudioSpirit;
extern const record::TypedTable<CFG_AUDIO_MATRIX_INFO> kAudioMatrices;
extern const record::TypedTable<CFG_LOWER_MATRIX_INFO> kLowerMatrices;
extern const record::TypedTable<CFG_COMPOSE_CHANNEL_INFO> kComposeChannel;
extern const record::TypedTable<CFG_AUDIO_VOLUME_INFO> kAudioVolume;
extern const record::TypedTable<CFG_AUDIO_INPUT_INFO> kAudioInput;
extern const record::TypedTable<CFG_AUDIO_MIX_CHANNEL_INFO> kAudioMixChannel;
extern const record::TypedTable<CFG_AUDIO_TOUCH_INFO> kAudioTouch;
extern const record::TypedTable<CFG_SPEAK_CAPS> kSpeakCaps;

} // namespace orrery
