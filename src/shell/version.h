#pragma once

// The program's three-part version, as the splash and the about box show it.
inline constexpr int version_majeure = 2;
inline constexpr int version_mineure = 2;
inline constexpr int version_révision = 9;
