/* What vormGetLibVersion tells. C99. */
#ifndef VORM_VERSION_H
#define VORM_VERSION_H

#ifdef __cplusplus
extern "C" {
#endif

/* A constant record of the library: read it, never free it. */
typedef struct VersionRecord {
    int versionMajor;
    int versionMinor;
    int versionUpdate;
    int revision;               /* source revision of the build                            */
    char targetCode[4];         /* "n8" or "u8", padded with NUL bytes                     */
    const char* libraryLabel;   /* library and target, NUL-terminated like the other texts */
    const char* versionLabel;   /* version and revision                                    */
    const char* buildDateLabel; /* date of the build                                       */
} VersionRecord;

/* The record of the target chosen when the library was loaded: "n8" on processors with SSSE3 and
 * SSE4.1, "u8" otherwise. Both run the same arithmetic. Never null, the same address every time. */
const VersionRecord* vormGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
