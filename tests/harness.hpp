// The one harness: a call of any function of the catalogue, each operand laid out for itself, beside the
// model of its family. A family brings what it differs in; families.cpp names them all.
#pragma once

#include <functional>

#include "operands.hpp"
#include "standin_core.hpp"

struct Sizes {  // of the result, and the terms of a product's sums
    int rows = 3, columns = 3, terms = 3;
};

enum class Values {
    ordinary,      // numbers of either sign and some zeros
    special,       // infinities, NaN, denormals and the like among them
    integers,      // so small that matrices are singular now and then
    negativeZeros  // in the first operand, 1 in all others: products that are -0
};

struct Problem {
    Sizes sizes = {};
    int count = 1;
    int threads = 1, later = 0;  // what the core library answers first, and from then on where that is not 0
    std::vector<Lie> lies = {};  // by operand; those left out lie packed at the end of a page
    Values values = Values::ordinary;
    bool inPlace = false;           // the destination is the source that the family allows
    std::vector<int> failing = {};  // objects that are to fail
};

struct Call;

// What a family of functions differs in.
struct Family {
    const char* name;
    bool (*has)(const Function&);
    std::vector<Sizes> (*sizes)(const Function&);  // worth trying
    // Does object n of a call in the shadows of its operands, or only tells its status where there is a judge.
    VormStatus (*model32f)(const Call&, int n) = nullptr;
    VormStatus (*model64f)(const Call&, int n) = nullptr;
    bool isExact = true;     // the model makes the bits; otherwise those of the objects that it passes are free
    bool movesBits = false;  // those of NaNs too; then no two elements of a destination may share memory
    bool goesOn = false;     // an object that fails keeps no other one from being done
    // Says what is wrong with object n in the memory after a call, by residuals or otherwise. Not asked where
    // results share memory or the source is gone.
    std::string (*judge32f)(const Call&, int n) = nullptr;
    std::string (*judge64f)(const Call&, int n) = nullptr;
    // The source that may be the destination; null where there is none.
    const char* (*inPlace)(const Function&, const Sizes&) = nullptr;
    // Puts the values that the general ones would not do for.
    void (*fill)(const Call&, Values, Random&) = nullptr;
    // Makes object n of a call fail.
    void (*spoil)(const Call&, int n, Random&) = nullptr;
    // How operands are stored that the general rule does not tell.
    Stored (*stored)(const Operand&, const Function&, const Problem&) = nullptr;
    int largest = 1000;  // size that takes no more than a moment
};

const std::vector<const Family*>& families();
const Family* familyOf(const Function& f);  // null where there is none

// A call with its operands laid out and filled.
struct Call {
    Call(const Function& function, const Problem& problem, Random& random);
    const Placed& operator[](std::string_view operand) const { return operands[f.operandNamed(operand)]; }
    bool isContiguous() const;  // elements adjacent in all operands, and not in pointer layout
    // Makes it, with the shadows as the memory was before.
    VormStatus make() const;
    int asked() const { return asked_; }  // how often the core library was asked for the threads

    const Function& f;
    Problem problem;
    std::vector<Placed> operands;
    std::vector<Argument> arguments;

private:
    mutable int asked_ = 0;
};

// A problem of a function with all that may vary in it drawn by lot, but for its sizes, count and threads.
Problem someProblem(const Function& f, const Sizes& sizes, Random& random);

// Lets the objects of the destination share memory, in one of the ways 1 to 4, in pointer layout from 0 on.
void letResultsOverlap(const Function& f, Problem& p, int way, Random& random);

// Makes the call beside the model of its family; all that it may touch has to be as the model left it, and
// the core library asked as often as its limit says. Returns what is wrong, nothing where all is well.
std::string check(const Call& call);
