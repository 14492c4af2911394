// What is measured: sections of rows, each row one task done by several contestants on the same memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <span>
#include <string>
#include <vector>

namespace bench {

struct Contestant {
    std::string name;
    std::function<void()> work;
};

// The contestant that only moves the row's bytes: not a peer, but what the memory allows.
inline const std::string bandwidth = "bandwidth";
// Nor is one that uses wider registers than we may: it has a column of its own.
inline const std::string widest = "libxsmm, widest";

struct Task {
    std::vector<Contestant> contestants;  // ours comes first
    std::span<std::byte> result = {};     // all but bandwidth must leave the same here; empty: not compared
};

struct Row {
    std::string name;
    std::int64_t objects;           // done by one call of a contestant's work
    std::function<Task()> prepare;  // called when the row's turn comes
    double wanted = 0;              // the ratio to the best peer we hold ourselves to, 0 for none
};

struct Section {
    std::string title, about;
    bool wallClock = false;  // otherwise the time of the calling thread
    std::vector<Row> rows = {};
};

using Sections = std::list<Section>;

// One function per subject, each in its own file; main calls them in the order of the report.
void addElementwise(Sections& sections);
void addMatrixSums(Sections& sections);
void addVectorProducts(Sections& sections);
void addMatrixProducts(Sections& sections);
void addGaxpy(Sections& sections);
void addLu(Sections& sections);
void addCholesky(Sections& sections);
void addDet(Sections& sections);
void addMath3d(Sections& sections);
void addQr(Sections& sections);
void addMeasures(Sections& sections);
void addCrossProducts(Sections& sections);
void addMovement(Sections& sections);
void addExtract(Sections& sections);
void addEigenSym(Sections& sections);
void addEigenValues(Sections& sections);
void addEigenVectors(Sections& sections);
void addCalls(Sections& sections);
void addTeam(Sections& sections);

}  // namespace bench
