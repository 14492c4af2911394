// The version records of the two targets, and the calls that return them.

#include "vorm/version.h"
#include "frame/layers.hpp"

namespace {

constexpr char versionLabel[] = "7.1.1 (r37466)";
constexpr char buildDateLabel[] = "Sep 24 2012";  // fixed: part of the record, so that builds are reproducible

constexpr VersionRecord u8Record = {7, 1, 1, 37466, "u8", "vorm SSSE3 (u8)", versionLabel, buildDateLabel};
constexpr VersionRecord n8Record = {7, 1, 1, 37466, "n8", "vorm Wren (n8)", versionLabel, buildDateLabel};

}  // namespace

extern "C" {

VORM_HIDDEN const VersionRecord* u8_vormGetLibVersion() { return &u8Record; }
VORM_HIDDEN const VersionRecord* n8_vormGetLibVersion() { return &n8Record; }
}
