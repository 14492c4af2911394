// Reads the triangles of a Wavefront OBJ file.
#include "common/obj_reader.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>

namespace examples {
namespace {

constexpr std::string_view blanks = " \t\v\f";

// Takes the text up to the first of the separators off its front.
std::string_view takeUntil(std::string_view& text, std::string_view separators)
{
    const std::string_view part = text.substr(0, text.find_first_of(separators));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> result;
    while (!text.empty()) {
        const std::string_view word = takeUntil(text, blanks);
        if (!word.empty()) result.push_back(word);
    }
    return result;
}

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    Mesh parse()
    {
        if (text_.starts_with("\xef\xbb\xbf")) text_.remove_prefix(3);  // byte order mark
        for (std::string line; nextLine(line);) {
            const auto parts = words(line);
            if (parts.empty()) continue;
            if (parts[0] == "v") vertex(parts);
            if (parts[0] == "f") face(parts);
        }
        if (mesh_.vertices.empty()) throw BadMesh(0, "no vertices");
        if (mesh_.corners.empty()) throw BadMesh(0, "no faces");
        // A face may come before its vertices, so this waits for the end.
        for (std::size_t i = 0; i < mesh_.corners.size(); ++i)
            if (mesh_.corners[i] >= mesh_.vertexCount())
                throw BadMesh(triangleLines_[i / 3], "vertex " + std::to_string(mesh_.corners[i] + 1LL) + " of " +
                                                         std::to_string(mesh_.vertexCount()));
        return std::move(mesh_);
    }

private:
    [[noreturn]] void fail(const std::string& reason) const { throw BadMesh(line_, reason); }

    static std::string quoted(std::string_view word)
    {
        constexpr std::size_t enough = 40;
        return std::string("'").append(word.substr(0, enough)).append(word.size() > enough ? "...'" : "'");
    }

    // One logical line without its comment: a backslash at the end joins the next physical line.
    // line_ is the number of the first one.
    bool nextLine(std::string& line)
    {
        if (text_.empty()) return false;
        line.clear();
        line_ = ++physicalLine_;
        for (;;) {
            std::string_view part = physicalLine();
            part = part.substr(0, part.find('#'));
            const bool joins = part.ends_with('\\');
            if (joins) part.remove_suffix(1);
            line.append(part).append(" ");
            if (!joins || text_.empty()) return true;
            ++physicalLine_;
        }
    }

    // Lines end with LF, CR LF or CR.
    std::string_view physicalLine()
    {
        const std::size_t end = std::min(text_.find_first_of("\r\n"), text_.size());
        const std::string_view line = text_.substr(0, end);
        const bool two = text_.substr(end).starts_with("\r\n");
        text_.remove_prefix(std::min(end + (two ? 2 : 1), text_.size()));
        for (const char c : line)
            if (static_cast<unsigned char>(c) < 0x20 && blanks.find(c) == blanks.npos)
                throw BadMesh(physicalLine_, "control character, not a text file");
        return line;
    }

    float number(std::string_view word) const
    {
        const std::string_view digits = word.substr(word.starts_with('+') ? 1 : 0);
        double value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error == std::errc::invalid_argument || end != digits.data() + digits.size())
            fail(quoted(word) + " is not a number");
        const float result = static_cast<float>(value);
        if (error != std::errc() || !std::isfinite(result)) fail(quoted(word) + " is not a finite number");
        return result;
    }

    // x y z, then perhaps a weight, a colour, or both, which a mesh of triangles does not need.
    void vertex(const std::vector<std::string_view>& parts)
    {
        if (parts.size() < 4) fail("vertex with " + std::to_string(parts.size() - 1) + " of 3 coordinates");
        for (std::size_t i = 1; i < parts.size(); ++i) {
            const float value = number(parts[i]);
            if (i <= 3) mesh_.vertices.push_back(value);
        }
    }

    long index(std::string_view digits, std::string_view word) const
    {
        long value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error == std::errc::invalid_argument || end != digits.data() + digits.size())
            fail(quoted(word) + " is not a corner of a face");
        if (error != std::errc() || std::labs(value) >= INT_MAX) fail(quoted(word) + " is out of range");
        if (value == 0) fail("index 0 in " + quoted(word) + ", the first is 1");
        return value;
    }

    // v, v/vt, v//vn or v/vt/vn; negative numbers count backwards from the last vertex so far.
    int corner(std::string_view word) const
    {
        std::string_view rest = word;
        const long v = index(takeUntil(rest, "/"), word);
        for (int unused = 0; unused < 2 && !rest.empty(); ++unused) {
            const std::string_view digits = takeUntil(rest, "/");
            if (!digits.empty()) index(digits, word);
        }
        if (!rest.empty()) fail(quoted(word) + " is not a corner of a face");
        if (v > 0) return static_cast<int>(v - 1);
        if (-v > mesh_.vertexCount())
            fail("vertex " + std::to_string(v) + " with " + std::to_string(mesh_.vertexCount()) + " so far");
        return static_cast<int>(mesh_.vertexCount() + v);
    }

    void face(const std::vector<std::string_view>& parts)
    {
        if (parts.size() < 4) fail("face with " + std::to_string(parts.size() - 1) + " corners");
        const int first = corner(parts[1]);
        int previous = corner(parts[2]);
        for (std::size_t i = 3; i < parts.size(); ++i) {
            const int next = corner(parts[i]);
            mesh_.corners.insert(mesh_.corners.end(), {first, previous, next});
            triangleLines_.push_back(line_);
            previous = next;
        }
    }

    std::string_view text_;
    int line_ = 0, physicalLine_ = 0;
    Mesh mesh_;
    std::vector<int> triangleLines_;
};

}  // namespace

Mesh parseObj(std::string_view text) { return Parser(text).parse(); }

Mesh readObj(const std::string& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) throw BadMesh(0, std::strerror(errno));
    std::string text;
    char block[1 << 16];
    while (const std::size_t size = std::fread(block, 1, sizeof block, file.get())) text.append(block, size);
    if (std::ferror(file.get())) throw BadMesh(0, std::strerror(errno));
    return parseObj(text);
}

}  // namespace examples
