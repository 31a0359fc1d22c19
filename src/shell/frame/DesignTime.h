// The visibility of the main window's menus, fixed when the program is built. Nothing changes it at run time.
#pragma once

namespace DesignTime {

inline constexpr bool administration = TOLMARK_ADMINISTRATION;

inline constexpr bool mnuNewUserVisible = administration;
inline constexpr bool mnuDifferentUserVisible = administration;
inline constexpr bool mnuAdministratorVisible = administration;
inline constexpr bool mnuDocVisible = administration;
inline constexpr bool mnuNewRecordVisible = administration;
inline constexpr bool mnuOpenRecordVisible = administration;
inline constexpr bool mnuHelpVisible = administration;

} // namespace DesignTime
