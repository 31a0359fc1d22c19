// The constants of the data objects, under the names by which handlers use them.
#pragma once

namespace data {

inline constexpr int adOptionUnspecified = -1;

enum CursorLocationEnum : int { adUseServer = 2, adUseClient = 3 };
enum CursorTypeEnum : int { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockTypeEnum : int { adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3, adLockBatchOptimistic = 4 };
enum ObjectStateEnum : int { adStateClosed = 0, adStateOpen = 1 };
enum DataTypeEnum : int { adInteger = 3, adDate = 7, adChar = 129, adVarWChar = 202 };

} // namespace data
