#ifndef KX7_FOUNDATION_SOUND_PLAYER_H
#define KX7_FOUNDATION_SOUND_PLAYER_H

#include "platform/base/export.h"
#include "platform/base/types.h"

#if defined(_WIN32)
#include <mmsystem.h>
#else
constexpr DWORD SND_ASYNC = 0x1;
constexpr DWORD SND_NODEFAULT = 0x2;
constexpr DWORD SND_NOSTOP = 0x10;
constexpr DWORD SND_NOWAIT = 0x2000;
constexpr DWORD SND_FILENAME = 0x20000;
#endif

/// Plays a sound file with the system's flags, SND_...; what can't be played is silent.
using SoundPlayer = void (*)(char const * file, DWORD flags);

/// Sets what plays sounds; null for the system's own player, which is silent where there is none. The result
/// is the player that was set before.
KX7_API SoundPlayer SetSoundPlayer(SoundPlayer player);

/// Asks the player.
KX7_API void PlaySoundFile(char const * file, DWORD flags);

#endif
