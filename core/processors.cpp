// Processors by affinity mask and by the quotas of control groups, of the second version (cpu.max) and of the
// first (cpu.cfs_quota_us); a machine may have both.

#include "processors.hpp"

#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <fstream>
#include <sstream>

namespace vorcore {

namespace {

bool listHas(std::string_view list, std::string_view word)
{
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t end = std::min(list.find(',', at), list.size());
        if (list.substr(at, end - at) == word) return true;
        at = end + 1;
    }
    return false;
}

// The path of this process's group where the second version has it (a line "0::path"), or the first
// version's cpu controller ("number:controllers:path"); empty where there is none.
std::string ownGroup(const std::string& root, bool second)
{
    std::ifstream groups(root + "/proc/self/cgroup");
    for (std::string line; std::getline(groups, line);) {
        const std::size_t first = line.find(':'), last = first == line.npos ? first : line.find(':', first + 1);
        if (last == line.npos) continue;
        const std::string_view controllers = std::string_view(line).substr(first + 1, last - first - 1);
        if (second ? controllers.empty() : listHas(controllers, "cpu")) return line.substr(last + 1);
    }
    return {};
}

// The kernel writes blanks and the like in paths as a backslash and three octal digits.
std::string unescaped(const std::string& path)
{
    std::string plain;
    for (std::size_t k = 0; k < path.size(); ++k) {
        const bool escape = path[k] == '\\' && k + 3 < path.size();
        const auto digit = [&](std::size_t n) { return path[k + n] - '0'; };
        plain += escape ? static_cast<char>(64 * digit(1) + 8 * digit(2) + digit(3)) : path[k];
        k += escape ? 3 : 0;
    }
    return plain;
}

// Quota and period of one group, both 0 where there is no quota.
struct Quota {
    std::int64_t time = 0, period = 0;
};

Quota quotaOf(const std::string& group, bool second)
{
    Quota quota;
    if (second) {
        std::ifstream file(group + "/cpu.max");  // "max period" without a quota, which is no number
        if (!(file >> quota.time >> quota.period)) return {};
    } else {
        std::ifstream time(group + "/cpu.cfs_quota_us"), period(group + "/cpu.cfs_period_us");  // -1 without
        if (!(time >> quota.time) || !(period >> quota.period)) return {};
    }
    return quota;
}

struct Mount {
    std::string part, point;  // the group that is mounted, and where
    bool second;
};

// Reads a line of mountinfo: "id parent device part point options tags... - type source superoptions".
bool isGroupMount(const std::string& line, Mount& mount)
{
    const std::size_t dash = line.find(" - ");
    if (dash == line.npos) return false;
    std::string skipped, type, options;
    std::istringstream before(line), after(line.substr(dash + 3));
    before >> skipped >> skipped >> skipped >> mount.part >> mount.point;
    after >> type >> skipped >> options;
    mount.part = unescaped(mount.part), mount.point = unescaped(mount.point);
    mount.second = type == "cgroup2";
    return mount.second || (type == "cgroup" && listHas(options, "cpu"));
}

// The group's path below the mount point; empty, the point itself, where it lies outside of what is mounted, as
// within a container that sees another name of its group than its kernel gives it.
std::string pathBelow(const Mount& mount, const std::string& group)
{
    if (group == "/" || group.starts_with("/..")) return {};
    if (mount.part == "/") return group;
    if (group.starts_with(mount.part + "/")) return group.substr(mount.part.size());
    return {};
}

}  // namespace

std::int32_t processorsInMask()
{
    cpu_set_t masks[16];  // more processors than kernels are built for
    if (sched_getaffinity(0, sizeof masks, masks) == 0) return std::max(1, CPU_COUNT_S(sizeof masks, masks));
    const long online = sysconf(_SC_NPROCESSORS_ONLN);
    return online > 0 ? static_cast<std::int32_t>(online) : 1;
}

std::int32_t processorsInQuota(const std::string& root)
{
    std::int64_t least = INT32_MAX;
    std::ifstream mounts(root + "/proc/self/mountinfo");
    for (std::string line; std::getline(mounts, line);) {
        Mount mount;
        if (!isGroupMount(line, mount)) continue;
        const std::string top = root + mount.point;
        for (std::string path = pathBelow(mount, ownGroup(root, mount.second));; path.erase(path.rfind('/'))) {
            const Quota quota = quotaOf(top + path, mount.second);
            if (quota.time > 0 && quota.period > 0) least = std::min(least, (quota.time - 1) / quota.period + 1);
            if (path.find('/') == path.npos) break;
        }
    }
    return least == INT32_MAX ? 0 : static_cast<std::int32_t>(least);
}

}  // namespace vorcore
