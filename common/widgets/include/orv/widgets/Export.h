#pragma once

// Standard attribute syntax where there is a choice: GCC refuses the other form beside [[nodiscard]].
#if defined(_WIN32)
#ifdef ORV_PROPERTY_EDITOR_BUILD
#define ORV_PROPERTY_EDITOR_EXPORT __declspec(dllexport)
#else
#define ORV_PROPERTY_EDITOR_EXPORT __declspec(dllimport)
#endif
#else
#define ORV_PROPERTY_EDITOR_EXPORT [[gnu::visibility("default")]]
#endif
