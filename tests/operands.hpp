// Operands described once, by role, and laid out in memory in any way a layout allows. Each operand
// stands in memory of its own that ends, or begins, at an unmapped page; a shadow of that memory lets a
// naive model run beside the call, so that afterwards every byte has to agree.
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "catalogue.hpp"
#include "guarded.hpp"

using Random = std::mt19937_64;

inline int pick(Random& random, int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
inline bool chance(Random& random, int percent) { return pick(random, 1, 100) <= percent; }

// Values that show faults: zeros of both signs, infinities, NaN and denormals among ordinary numbers.
template <class T>
T someValue(Random& random)
{
    switch (pick(random, 0, 40)) {
    case 0: return T(0);
    case 1: return T(-0.0);
    case 2: return std::numeric_limits<T>::infinity();
    case 3: return -std::numeric_limits<T>::infinity();
    case 4: return std::numeric_limits<T>::quiet_NaN();
    case 5: return std::numeric_limits<T>::denorm_min() * T(pick(random, 1, 1000));
    case 6: return std::numeric_limits<T>::max();
    default: return T(std::uniform_real_distribution<double>(-8, 8)(random));
    }
}

// The memory of one operand and its shadow.
struct Room {
    explicit Room(std::size_t bytes) : memory(bytes) {}
    void fill(Random& random)
    {
        for (std::size_t i = 0; i < memory.size(); i += 8) {
            const auto word = random();
            std::memcpy(memory.data() + i, &word, 8);
        }
    }
    void shade() { shadow.assign(memory.data(), memory.data() + memory.size()); }
    bool agrees() const { return std::memcmp(memory.data(), shadow.data(), shadow.size()) == 0; }

    Guarded memory;
    std::vector<char> shadow;
};

// Where the elements of one operand are: element (n, e) at offset objects[n] + elements[e] of its room.
template <class T>
struct Placed {
    std::shared_ptr<Room> room;
    std::ptrdiff_t base = 0;
    std::vector<std::ptrdiff_t> objects, elements;
    int stride0 = 0, stride1 = 0, stride2 = 0, shift = 0;
    std::vector<T*> table;  // of the list or pointer layout

    std::ptrdiff_t offset(int n, int e) const
    {
        return base + objects[objects.size() == 1 ? 0 : std::size_t(n)] + elements[std::size_t(e)];
    }
    // In the shadow.
    T get(int n, int e) const
    {
        T value;
        std::memcpy(&value, room->shadow.data() + offset(n, e), sizeof value);
        return value;
    }
    void set(int n, int e, T value) const { std::memcpy(room->shadow.data() + offset(n, e), &value, sizeof value); }
    // In the memory itself.
    T found(int n, int e) const
    {
        T value;
        std::memcpy(&value, room->memory.data() + offset(n, e), sizeof value);
        return value;
    }
    void put(int n, int e, T value) const { std::memcpy(room->memory.data() + offset(n, e), &value, sizeof value); }
    // A NaN in the shadow stands for any NaN.
    void acceptAnyNan(int count) const
    {
        for (int n = 0; n < count; ++n)
            for (int e = 0; e < int(elements.size()); ++e)
                if (std::isnan(get(n, e)) && std::isnan(found(n, e))) set(n, e, found(n, e));
    }
    bool unaligned() const { return base % std::ptrdiff_t(sizeof(T)) != 0; }
};

// How an operand is to lie. The defaults are packed and aligned at the end of a page.
struct Lie {
    int rows = 1, columns = 1;                // as stored; a vector has one row
    int count = 0;                            // objects of an array, 0: a single object
    std::string layout = {};                  // "", "L" or "P"
    int gap2 = 1;                             // stride2 in elements
    int padRow = 0, padObject = 0, slot = 0;  // elements behind rows and objects; objects at multiples of slot bytes
    bool planes = false;                      // pointer layout: a plane for each element, objects side by side
    bool shuffled = false;                    // the order of the list's objects or of the table's planes
    int overlapping = 0;                      // objects so few elements apart, 0 for a place of their own
    bool atFront = false;                     // against the page before
    int misaligned = 0;                       // bytes between the operand and its page
    int shift = 0;
};

// A random way to lie for an operand of a layout.
inline Lie someLie(Random& random, const std::string& layout, int rows, int columns, int count)
{
    Lie lie{.rows = rows, .columns = columns, .count = count, .layout = layout};
    if (chance(random, 30)) lie.gap2 = pick(random, 2, 4);
    if (chance(random, 30)) lie.padRow = pick(random, 1, 3);
    if (chance(random, 40)) lie.padObject = pick(random, 1, 5);
    if (chance(random, 25)) lie.slot = 16;
    lie.planes = chance(random, 60);
    lie.shuffled = chance(random, 60);
    lie.atFront = chance(random, 30);
    if (chance(random, 30)) lie.misaligned = pick(random, 1, 15);
    if (chance(random, 40)) lie.shift = pick(random, 1, 4) * 8;
    return lie;
}

// Lays an operand out in a room, one of its own unless one is given. With `element` in bytes.
template <class T>
Placed<T> place(Random& random, const Lie& lie, std::shared_ptr<Room> room = nullptr)
{
    const auto e = std::ptrdiff_t(sizeof(T));
    const int objects = std::max(lie.count, 1), stored = lie.rows * lie.columns;
    Placed<T> p;
    p.stride2 = int(e) * (lie.layout == "P" ? 1 : lie.gap2);
    p.stride1 = p.stride2 * lie.columns + int(e) * lie.padRow;
    std::ptrdiff_t objectBytes = std::ptrdiff_t{lie.rows - 1} * p.stride1 + std::ptrdiff_t{lie.columns} * p.stride2;
    objectBytes += e * lie.padObject;
    if (lie.slot) objectBytes = (objectBytes + lie.slot - 1) / lie.slot * lie.slot;
    const bool planes = lie.layout == "P" && lie.planes && lie.count > 0;
    p.stride0 = planes ? int(e) : lie.overlapping ? int(e) * lie.overlapping : int(objectBytes);
    p.shift = lie.shift;

    std::vector<int> order(std::size_t(planes ? stored : objects));
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = int(i);
    if (lie.shuffled && (planes || lie.layout == "L")) std::shuffle(order.begin(), order.end(), random);
    const std::ptrdiff_t planeBytes = e * (objects + lie.padObject);
    for (int n = 0; n < objects; ++n)
        p.objects.push_back(std::ptrdiff_t{p.stride0} * (planes ? n : order[std::size_t(n)]));
    for (int i = 0; i < stored; ++i)
        p.elements.push_back(planes ? order[std::size_t(i)] * planeBytes
                                    : i / lie.columns * std::ptrdiff_t{p.stride1} +
                                          i % lie.columns * std::ptrdiff_t{p.stride2});
    if (lie.layout == "P" && !planes && lie.shuffled) std::shuffle(p.elements.begin(), p.elements.end(), random);

    const auto span = *std::max_element(p.objects.begin(), p.objects.end()) +
                      *std::max_element(p.elements.begin(), p.elements.end()) + e;
    if (!room) {
        room = std::make_shared<Room>(std::size_t(span + lie.misaligned));
        room->fill(random);
    }
    p.room = room;
    p.base = lie.atFront ? lie.misaligned : std::ptrdiff_t(room->memory.size()) - span - lie.misaligned;
    for (int n = 0; n < objects; ++n)
        for (int i = 0; i < stored; ++i) p.put(n, i, someValue<T>(random));

    const auto entry = [&](std::ptrdiff_t offset) {
        return reinterpret_cast<T*>(room->memory.data() + p.base + offset - lie.shift);
    };
    if (lie.layout == "L" && lie.count > 0)
        for (auto offset : p.objects) p.table.push_back(entry(offset));
    if (lie.layout == "P")
        for (auto offset : p.elements) p.table.push_back(entry(offset));
    return p;
}

// The argument a function takes for a parameter of an operand that lies so.
template <class T>
Argument argumentFor(const Parameter& parameter, const Placed<T>& p)
{
    switch (parameter.role) {
    case Role::pointer: return {p.room->memory.begin() + p.base};
    case Role::table: return {reinterpret_cast<std::intptr_t>(p.table.data())};
    case Role::shift: return {p.shift};
    default: return {parameter.stride == 0 ? p.stride0 : parameter.stride == 1 ? p.stride1 : p.stride2};
    }
}
