/* The contract of the closed link library Lorimet32: every operation under its exported name.
 *
 * The program loads the library at run time and resolves each name; the simulator defines them.
 * Texts are NUL-terminated code page 1252 in buffers of at least 1,024 bytes, unless a row says
 * otherwise. Status results are 0 for success. Calls are made on the user-interface thread. */
#pragma once

#include <stdint.h>

#if defined(_WIN32) && !defined(_WIN64)
#define LORIMET32_CALL __stdcall
#else
#define LORIMET32_CALL
#endif

#if defined(_WIN32)
#define LORIMET32_EXPORT __declspec(dllexport)
#else
#define LORIMET32_EXPORT __attribute__((visibility("default")))
#endif

/* One row an operation: X(name, parameter list, argument list). These two can be called at any
 * time, the others need a connection. */
#define LORIMET32_FREE_OPERATIONS(X)                                                               \
  /* Result: the RP1210A client identifier, 0 to 127; any other value is an error code. The        \
   * addresses stay valid until Disconnect returns. hWnd: a window handle, or the writing end of a \
   * pipe that takes one native-endian int32_t a status. */                                        \
  X(Connect,                                                                                       \
    (char* protocol, uint32_t hWnd, char* vendor, int32_t deviceId, int32_t family,                \
     uint8_t* before2, uint8_t* before1, void* linkStatus, void* ecuData, uint8_t* after1,         \
     uint8_t* after2, uint8_t* after3, uint32_t* afterWord),                                       \
    (protocol, hWnd, vendor, deviceId, family, before2, before1, linkStatus, ecuData, after1,      \
     after2, after3, afterWord))                                                                   \
  /* buffer: `length` blanks and a NUL behind them; a code with no text leaves it as it is. */     \
  X(GetErrorText, (int32_t code, char* buffer, int32_t length), (code, buffer, length))

#define LORIMET32_SERVICE_OPERATIONS(X)                                                            \
  X(ResetECU, (void), ())                                                                          \
  X(ClearAllFaults, (void), ())                                                                    \
  X(FaultLock, (void), ())                                                                         \
  /* Result: the number of records in the fault store. */                                          \
  X(FaultGetCount, (void), ())                                                                     \
  /* firstRecord: FaultGetCount records of 24 bytes, written back to back. */                      \
  X(FaultGetData, (void* firstRecord), (firstRecord))                                              \
  X(FaultUnlock, (void), ())                                                                       \
  X(BusMonitorOpen, (void), ())                                                                    \
  X(BusMonitorClose, (void), ())                                                                   \
  /* text: 150 blanks and a NUL; timing: 25 blanks and a NUL. */                                   \
  X(BusMonitorGetData, (char* text, char* timing, int32_t showIdleTime, int32_t showTimestamp),    \
    (text, timing, showIdleTime, showTimestamp))                                                   \
  X(BusMonitorStartRecord, (char* file, char* comments, int32_t zero), (file, comments, zero))     \
  X(BusMonitorStopRecord, (void), ())                                                              \
  /* Starts a job; nLinkJobDone in the record tells its end. */                                    \
  X(Trailer_ABS_QOR_ReadStaticData, (void), ())                                                    \
  X(Trailer_ABS_QOR_DeleteODRData, (uint8_t selector), (selector))                                 \
  X(Trailer_ABS_KWP_StartSession, (uint8_t session), (session))                                    \
  X(Trailer_ABS_KWP_StopSession, (void), ())                                                       \
  X(Trailer_ABS_KWP_Password, (void), ())                                                          \
  X(Trailer_ABS_KWP_SwitchDiagMode, (uint8_t mode), (mode))                                        \
  X(Trailer_ABS_KWP_StartRoutineByLocId, (uint8_t id, uint8_t count, uint8_t * data),              \
    (id, count, data))                                                                             \
  X(Trailer_ABS_KWP_WriteMemoryByLocId, (uint8_t id, uint8_t count, uint8_t * data),               \
    (id, count, data))                                                                             \
  X(Trailer_ABS_KWP_WriteMemoryByAddress,                                                          \
    (uint8_t high, uint8_t middle, uint8_t low, uint8_t count, uint8_t * data),                    \
    (high, middle, low, count, data))                                                              \
  X(Trailer_ABS_KWP_ReadMemoryByAddress,                                                           \
    (uint8_t high, uint8_t middle, uint8_t low, uint8_t * wordHigh, uint8_t * wordLow),            \
    (high, middle, low, wordHigh, wordLow))                                                        \
  X(Trailer_ABS_KWP_IOControlByLocId, (uint8_t id, uint8_t count, uint8_t * data),                 \
    (id, count, data))                                                                             \
  /* data: 512 bytes; count: out, the bytes read. */                                               \
  X(Trailer_OVG_ReadDataByLocId, (uint8_t id, uint8_t * count, uint8_t * data), (id, count, data)) \
  X(Trailer_OVG_UploadData, (char* text), (text))                                                  \
  X(Trailer_OVG_UploadODRData, (uint8_t step, uint8_t code, int32_t zero), (step, code, zero))     \
  X(Trailer_OVG_ExportODRData, (char* file), (file))                                               \
  X(Trailer_OVG_StopLightActivation, (int32_t trailer, int32_t state), (trailer, state))

#define LORIMET32_LINK_OPERATIONS(X) X(Disconnect, (void), ()) LORIMET32_SERVICE_OPERATIONS(X)

#define LORIMET32_OPERATIONS(X) LORIMET32_FREE_OPERATIONS(X) LORIMET32_LINK_OPERATIONS(X)

#ifdef __cplusplus
extern "C" {
#endif

#define LORIMET32_DECLARE(name, parameters, arguments) \
  LORIMET32_EXPORT int32_t LORIMET32_CALL name parameters;
LORIMET32_OPERATIONS(LORIMET32_DECLARE)
#undef LORIMET32_DECLARE

#ifdef __cplusplus
}
#endif
