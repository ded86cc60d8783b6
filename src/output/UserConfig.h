#pragma once

// The RC4 key of "UserConfig.bin", as the players know it.
inline constexpr char userConfigKey[] = "zq4mk2pw7rxv1bn8ty";
