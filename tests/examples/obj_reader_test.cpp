// The OBJ reader of the examples: what it takes, and what it says about a file it does not.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/obj_reader.hpp"

using namespace examples;
using Corners = std::vector<int>;

namespace {

const std::string triangle = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";
const std::string square = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n";

TEST(ObjReader, TakesEveryFormOfFace)
{
    const struct {
        std::string text;
        Corners corners;
    } cases[] = {
        {triangle + "f 1 2 3", {0, 1, 2}},
        {triangle + "f 1/1 2/2 3/3\n", {0, 1, 2}},
        {triangle + "f 1//7 2//7 3//7\n", {0, 1, 2}},
        {triangle + "f 1/4/7 2/5/8 3/6/9\n", {0, 1, 2}},
        {triangle + "f 1/4/ 2// 3/\n", {0, 1, 2}},
        {triangle + "f -3 -2 -1\n", {0, 1, 2}},
        {triangle + "f -3 -2 -1\nv 9 9 9\nf -1/-1 -2/-1 1/1\n", {0, 1, 2, 3, 2, 0}},
        {square + "f 1 2 3 4\n", {0, 1, 2, 0, 2, 3}},
        {"f 3 2 1\n" + triangle, {2, 1, 0}},  // before its vertices
    };
    for (const auto& c : cases) EXPECT_EQ(parseObj(c.text).corners, c.corners) << c.text;
}

TEST(ObjReader, SkipsWhatIsNotTheMesh)
{
    const std::string texts[] = {
        "# comment\r\nmtllib a.mtl\r\n\r\nv 0 0 0\r\nv 1 0 0\r\nv 0 1 0\r\nvt 0 0\r\nusemtl x\r\nf 1 2 3\r\n",
        "v 0 0 0\rv 1 0 0\rv 0 1 0\rf 1 2 3",
        "\xef\xbb\xbfv 0 0 0 1.0\n\tv 1 0 0 0.5 0.5 0.5\n  v  0\t1 0 1 0.5 0.5 0.5 # with a colour\nf 1 2 3 # last",
        "v 0 \\\n0 0\nv 1 0 0\nv 0 1 \\\r\n0\nf 1 \\\n2 \\\n3\n",
        "# a path C:\\\nv 0 0 0\nv +1e0 0 0\nv 0 1. -0\ncurv2 zzz\nf 1 2 3\n\n\n",
    };
    for (const std::string& text : texts) {
        const Mesh mesh = parseObj(text);
        EXPECT_EQ(mesh.vertices, (std::vector<float>{0, 0, 0, 1, 0, 0, 0, 1, 0})) << text;
        EXPECT_EQ(mesh.corners, (Corners{0, 1, 2})) << text;
    }
}

TEST(ObjReader, NamesLineAndReasonOfABadFile)
{
    const struct {
        std::string text;
        int line;
        const char* reason;
    } cases[] = {
        {"", 0, "no vertices"},
        {"vn 0 0 1\nf 1 2 3\n", 0, "no vertices"},
        {triangle, 0, "no faces"},
        {triangle + "f 1 2 4\n", 4, "vertex 4 of 3"},
        {triangle + "f 1 2 3\nf 1 2 3 99\n", 5, "vertex 99 of 3"},
        {triangle + "f 0 1 2\n", 4, "index 0 in '0', the first is 1"},
        {triangle + "f 1/0 2/1 3/1\n", 4, "index 0 in '1/0', the first is 1"},
        {triangle + "f -1 -2 -4\n", 4, "vertex -4 with 3 so far"},
        {triangle + "f 1 2 99999999999999999999\n", 4, "'99999999999999999999' is out of range"},
        {triangle + "f 1 2 4294967297\n", 4, "'4294967297' is out of range"},
        {triangle + "f 1 2\n", 4, "face with 2 corners"},
        {triangle + "f\n", 4, "face with 0 corners"},
        {triangle + "f 1 2 three\n", 4, "'three' is not a corner of a face"},
        {triangle + "f 1 2 3/4/5/6\n", 4, "'3/4/5/6' is not a corner of a face"},
        {triangle + "f 1 2 3.5\n", 4, "'3.5' is not a corner of a face"},
        {triangle + "f 1 2 /3\n", 4, "'/3' is not a corner of a face"},
        {"v 0 0\n", 1, "vertex with 2 of 3 coordinates"},
        {"\n# x\nv 0 0 zero\n", 3, "'zero' is not a number"},
        {"v 0 0 0x10\n", 1, "'0x10' is not a number"},
        {"v 0 0 0 red\n", 1, "'red' is not a number"},
        {"v 0 nan 0\n", 1, "'nan' is not a finite number"},
        {"v 0 0 -inf\n", 1, "'-inf' is not a finite number"},
        {"v 0 0 1e39\n", 1, "'1e39' is not a finite number"},
        {"v 0 \\\n0 \\\nx\n", 1, "'x' is not a number"},  // the first line of those joined
        {"v 0 \\\n0 0\nv 0 0\n", 3, "vertex with 2 of 3 coordinates"},
        {"v 0 0 0\n\x01\x02\n", 2, "control character, not a text file"},
        {std::string("\x7f"
                     "ELF\0\0",
                     6),
         1, "control character, not a text file"},
        {"v 0 0 " + std::string(100, 'x'), 1, "'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...' is not a number"},
    };
    for (const auto& c : cases) {
        try {
            parseObj(c.text);
            ADD_FAILURE() << "taken: " << c.text;
        } catch (const BadMesh& bad) {
            EXPECT_EQ(bad.line, c.line) << c.text;
            EXPECT_STREQ(bad.what(), c.reason) << c.text;
        }
    }
}

TEST(ObjReader, ReportsFilesThatCannotBeRead)
{
    EXPECT_THROW(readObj("/no/such/file.obj"), BadMesh);
    EXPECT_THROW(readObj("/"), BadMesh);
}

}  // namespace
