// Operands laid out in memory in any way a layout allows, each for itself. An operand stands in memory of
// its own that ends, or begins, at an unmapped page; a shadow of that memory lets a naive model run beside
// the call, so that afterwards every byte has to agree.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

#if __has_include(<sanitizer/asan_interface.h>)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) (void)(address), (void)(size)
#define ASAN_UNPOISON_MEMORY_REGION(address, size) (void)(address), (void)(size)
#endif

#include "catalogue.hpp"
#include "guarded.hpp"

// The same numbers with every standard library.
class Random {
public:
    using result_type = std::uint64_t;
    explicit Random(std::uint64_t seed) : state_(seed) {}
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return ~result_type{0}; }
    result_type operator()()  // splitmix64
    {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

private:
    std::uint64_t state_;
};

inline int pick(Random& random, int low, int high) { return low + int(random() % std::uint64_t(high - low + 1)); }
inline bool chance(Random& random, int percent) { return pick(random, 1, 100) <= percent; }
inline double uniform(Random& random, double low, double high)
{
    return low + double(random() >> 11) * 0x1p-53 * (high - low);
}
template <class Items>
void shuffle(Items& items, Random& random)
{
    if (chance(random, 30)) return std::reverse(items.begin(), items.end());
    for (std::size_t i = items.size(); i > 1; --i) std::swap(items[i - 1], items[random() % i]);
}

// The memory of operands and its shadow. Small rooms are used again, since mapping is slow; those of gigabytes
// are sparse, their shadow too, and are not looked at as a whole.
class Room {
public:
    explicit Room(std::size_t bytes) : isSparse_(bytes > 64u << 20), memory_(take(bytes)), shadow_(take(bytes)) {}
    ~Room()
    {
        if (size() > 1u << 20) return;
        for (auto* guarded : {&memory_, &shadow_}) unused()[(*guarded)->size()].push_back(std::move(*guarded));
    }
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;

    char* data() const { return memory_->data(); }
    char* shadow() const { return shadow_->data(); }
    std::intptr_t begin() const { return memory_->begin(); }
    std::size_t size() const { return memory_->size(); }

    void fill(Random& random)
    {
        if (isSparse_) return;
        static const std::vector<std::uint64_t> noise = [] {
            Random source(99);
            std::vector<std::uint64_t> words(8192);
            for (auto& word : words) word = source();
            return words;
        }();
        for (std::size_t at = 0; at < size(); at += 4096)
            std::memcpy(data() + at, noise.data() + random() % (noise.size() - 512), 4096);
    }
    bool isSparse() const { return isSparse_; }

private:
    using Memory = std::unique_ptr<Guarded>;
    static std::map<std::size_t, std::vector<Memory>>& unused()
    {
        static std::map<std::size_t, std::vector<Memory>> rooms;
        return rooms;
    }
    Memory take(std::size_t bytes) const
    {
        auto& kept = unused()[(bytes + 4095) / 4096 * 4096];
        if (kept.empty()) return std::make_unique<Guarded>(bytes);
        auto memory = std::move(kept.back());
        kept.pop_back();
        return memory;
    }

    bool isSparse_;
    Memory memory_, shadow_;
};

struct Stored {  // the size of one object; a vector has one row
    int rows = 1, columns = 1;
};

enum class Far { nothing, objects, rows, elements };  // what is about a gigabyte apart

// How an operand is to lie. The defaults are packed and aligned at the end of a page.
struct Lie {
    int gap2 = 1;                             // stride2 in elements
    int padRow = 0, padObject = 0, slot = 0;  // elements behind rows and objects; objects at multiples of slot bytes
    bool planes = false;                      // pointer layout: a plane for each element, objects side by side
    bool shuffled = false;    // a list's objects or a table's planes or elements in any order, or reversed
    int overlapping = 0;      // objects so few elements apart, 0 for a place of their own
    int interleaved = 0;      // objects so many rows apart, all of them between two rows of one,
    int among = 0;            // or only so many, which then overlap
    bool isRepeated = false;  // list: some objects are the same one
    bool atFront = false;     // against the page before
    int misaligned = 0;       // bytes between the operand and its page
    int shift = 0;
    Far far = Far::nothing;
};

// A random way to lie.
inline Lie someLie(Random& random)
{
    Lie lie;
    if (chance(random, 30)) lie.gap2 = pick(random, 2, 4);
    if (chance(random, 30)) lie.padRow = pick(random, 1, 3);
    if (chance(random, 40)) lie.padObject = pick(random, 1, 5);
    if (chance(random, 25)) lie.slot = 16;
    lie.planes = chance(random, 60);
    lie.shuffled = chance(random, 50);
    lie.atFront = chance(random, 30);
    if (chance(random, 30)) lie.misaligned = pick(random, 1, 15);
    if (chance(random, 50)) lie.shift = pick(random, 1, 5) * 8;
    return lie;
}

// Where the elements of an operand are: element (n, e) at offset objects[n] + elements[e] from its base.
struct Placed {
    std::shared_ptr<Room> room;
    std::ptrdiff_t base = 0;
    std::vector<std::ptrdiff_t> objects, elements;
    int stride[3] = {}, shift = 0;
    int columns = 1;
    std::shared_ptr<Room> table;  // of the list or pointer layout, at the end of its page
    std::intptr_t tableAddress = 0;

    std::ptrdiff_t offset(int n, int e) const
    {
        return base + objects[objects.size() == 1 ? 0 : std::size_t(n)] + elements[std::size_t(e)];
    }
    int count() const { return int(objects.size()); }
    int size() const { return int(elements.size()); }
    // In the shadow, and in the memory itself.
    template <class T>
    T get(int n, int e) const
    {
        return read<T>(room->shadow() + offset(n, e));
    }
    template <class T>
    T found(int n, int e) const
    {
        return read<T>(room->data() + offset(n, e));
    }
    void set(int n, int e, auto value) const { std::memcpy(room->shadow() + offset(n, e), &value, sizeof value); }
    void put(int n, int e, auto value) const { std::memcpy(room->data() + offset(n, e), &value, sizeof value); }
    // Makes the shadow the same as the memory; of a sparse room only the elements, as in the comparison.
    void shade(std::size_t e) const
    {
        eachStretch(e, [&](std::ptrdiff_t at, std::size_t bytes) {
            std::memcpy(room->shadow() + at, room->data() + at, bytes);
            return true;
        });
    }
    bool agrees(std::size_t e) const
    {
        return eachStretch(e, [&](std::ptrdiff_t at, std::size_t bytes) {
            return std::memcmp(room->shadow() + at, room->data() + at, bytes) == 0;
        });
    }
    template <class Work>
    bool eachStretch(std::size_t elementSize, const Work& work) const
    {
        if (!room->isSparse()) return work(0, room->size());
        bool all = true;
        for (int n = 0; n < count(); ++n)
            for (int e = 0; e < size(); ++e) all = work(offset(n, e), elementSize) && all;
        return all;
    }
    // Whether elements share memory.
    bool overlapsItself(int e) const
    {
        std::vector<std::ptrdiff_t> all;
        for (int n = 0; n < count(); ++n)
            for (int i = 0; i < size(); ++i) all.push_back(offset(n, i));
        std::sort(all.begin(), all.end());
        return std::adjacent_find(all.begin(), all.end(), [&](auto a, auto b) { return b - a < e; }) != all.end();
    }
    template <class T>
    static T read(const char* from)
    {
        T value;
        std::memcpy(&value, from, sizeof value);
        return value;
    }
    std::intptr_t address() const { return reinterpret_cast<std::intptr_t>(room->data() + base); }

    // Under the address sanitizer a call may touch what lies from the first to the last element, and nothing else of
    // the room: closes the rest of it, or opens it again.
    void close(std::size_t e) const
    {
        if (room->isSparse()) return;
        const auto [firstObject, lastObject] = std::minmax_element(objects.begin(), objects.end());
        const auto [firstElement, lastElement] = std::minmax_element(elements.begin(), elements.end());
        const auto from = base + *firstObject + *firstElement;
        const auto to = base + *lastObject + *lastElement + std::ptrdiff_t(e);
        ASAN_POISON_MEMORY_REGION(room->data(), std::size_t(from));
        ASAN_POISON_MEMORY_REGION(room->data() + to, room->size() - std::size_t(to));
        if (table) ASAN_POISON_MEMORY_REGION(table->data(), std::size_t(tableAddress - table->begin()));
    }
    void open() const
    {
        if (room->isSparse()) return;
        ASAN_UNPOISON_MEMORY_REGION(room->data(), room->size());
        if (table) ASAN_UNPOISON_MEMORY_REGION(table->data(), table->size());
    }
};

// Lays out count objects of an operand, whose elements have e bytes. What it has no stride for is packed.
inline Placed place(Random& random, const Operand& o, Stored stored, int count, int e, Lie lie)
{
    const bool inTable = o.layout == "P", isList = o.layout == "L" && o.isArray;
    if (!inTable && !o.hasStride[2]) lie.gap2 = 1;
    if (!inTable && !o.hasStride[1]) lie.padRow = 0;
    if (!isList && !o.hasStride[0]) lie.padObject = lie.slot = lie.overlapping = lie.interleaved = 0;
    const int number = o.isArray ? count : 1, size = stored.rows * stored.columns;
    const bool planes = inTable && lie.planes && o.isArray;
    constexpr int gigabyte = 1 << 30;

    Placed p;
    p.columns = stored.columns;
    p.stride[2] = e * lie.gap2;
    p.stride[1] = p.stride[2] * stored.columns + e * lie.padRow;
    auto step = std::ptrdiff_t{stored.rows - 1} * p.stride[1] + std::ptrdiff_t{stored.columns} * p.stride[2];
    step += e * lie.padObject;
    if (lie.slot) step = (step + lie.slot - 1) / lie.slot * lie.slot;
    if (planes) step = e;
    if (lie.interleaved && !planes)
        step = lie.interleaved * std::ptrdiff_t{p.stride[1]},
        p.stride[1] = int(step) * (lie.among ? lie.among : number);
    if (lie.overlapping) step = e * lie.overlapping;
    if (lie.far == Far::objects) step = gigabyte + 7 * e;
    if (lie.far == Far::rows) step = p.stride[1], p.stride[1] = gigabyte + 5 * e;
    if (lie.far == Far::elements) p.stride[1] = e, step = e * stored.rows, p.stride[2] = gigabyte / 2 + 3 * e;
    p.stride[0] = int(step);
    if (!o.layout.empty()) p.shift = lie.shift;

    std::vector<int> order(std::size_t(planes ? size : number));
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = int(i);
    if (lie.shuffled && (planes || isList)) shuffle(order, random);
    if (lie.isRepeated && isList)
        for (int& object : order) object = pick(random, 0, number - 1);
    const std::ptrdiff_t plane = e * (number + lie.padObject);
    for (int n = 0; n < number; ++n) p.objects.push_back(step * (planes ? n : order[std::size_t(n)]));
    for (int i = 0; i < size; ++i)
        p.elements.push_back(planes ? order[std::size_t(i)] * plane
                                    : i / stored.columns * std::ptrdiff_t{p.stride[1]} +
                                          i % stored.columns * std::ptrdiff_t{p.stride[2]});
    if (inTable && !planes && lie.shuffled) shuffle(p.elements, random);

    const auto span = *std::max_element(p.objects.begin(), p.objects.end()) +
                      *std::max_element(p.elements.begin(), p.elements.end()) + e;
    p.room = std::make_shared<Room>(std::size_t(span + lie.misaligned));
    p.room->fill(random);
    p.base = lie.atFront ? lie.misaligned : std::ptrdiff_t(p.room->size()) - span - lie.misaligned;
    if (isList || inTable) {
        const auto& entries = isList ? p.objects : p.elements;
        const std::size_t bytes = entries.size() * sizeof(char*);
        p.table = std::make_shared<Room>(bytes);
        p.tableAddress = reinterpret_cast<std::intptr_t>(p.table->data() + p.table->size() - bytes);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            char* const entry = p.room->data() + p.base + entries[i] - p.shift;
            std::memcpy(p.table->data() + p.table->size() - bytes + i * sizeof entry, &entry, sizeof entry);
        }
    }
    return p;
}
