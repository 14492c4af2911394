// Sums, differences and scaled sums of vectors and their products by constants, against Eigen in every form a user
// could choose for the layout:
//   long map      the packed array as one long vector; a common operand repeated in memory beforehand
//   replicate     the array as a Len x count matrix, the common operand as a replicate expression
//   fixed loop    object by object through fixed-size maps; common operands copied to locals, or by reference
//   plane by plane, for structures of arrays: one long vector for each element
#pragma once

#include <emmintrin.h>

#include <Eigen/Core>
#include <tuple>

#include "members.hpp"
#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

enum class Kind { array, common, constant, constants };
enum class Layout { packed, slots, anyStride, list, planes };

// Operations: on numbers and on Eigen's expressions. Factors stand behind the sources they scale.
struct Sum {
    static constexpr int factors = 0;
};
struct Add : Sum {
    auto operator()(const auto& a, const auto& b) const { return a + b; }
};
struct Sub : Sum {
    auto operator()(const auto& a, const auto& b) const { return a - b; }
};
struct SubFrom : Sum {  // the constant shapes take their vector first
    auto operator()(const auto& a, const auto& b) const { return b - a; }
};
struct Mul {
    static constexpr int factors = 0;
    auto operator()(const auto& a, const auto& b) const { return a * b; }
};
template <class T>
struct Saxpy {
    static constexpr int factors = 1;
    T val = T(1.25);
    auto operator()(const auto& a, const auto& b) const { return a * val + b; }
};
template <class T>
struct LComb {
    static constexpr int factors = 2;
    T val1 = T(1.25), val2 = T(0.75);
    auto operator()(const auto& a, const auto& b) const { return a * val1 + b * val2; }
};

// An operand in the form of every contestant.
template <class T, int Len, Kind kind, Layout layout>
class Operand {
public:
    using Object = Eigen::Array<T, Len, 1>;
    using Long = Eigen::Array<T, Eigen::Dynamic, 1>;
    using Wide = Eigen::Array<T, Len, Eigen::Dynamic>;
    using Spread = Eigen::Map<Object, 0, Eigen::InnerStride<>>;

    static constexpr int elementsPerSlot = 16 / static_cast<int>(sizeof(T));
    static constexpr int step =  // from object to object, as far as the peers may know it beforehand
        layout == Layout::slots ? (Len + elementsPerSlot - 1) / elementsPerSlot * elementsPerSlot : Len;
    static constexpr int bytes = static_cast<int>(sizeof(T));
    static constexpr bool isAnyStride = layout == Layout::anyStride;

    Operand(int index, int count) : count_(count)
    {
        if constexpr (isAnyStride) step2_ = 2, step0_ = 2 * Len;
        const std::ptrdiff_t planeStep = (count + 15) / 16 * 16 + 7 * 64 / bytes;
        const std::ptrdiff_t elements = kind == Kind::constant     ? 1
                                        : kind == Kind::constants  ? count
                                        : kind == Kind::common     ? step0_
                                        : layout == Layout::planes ? planeStep * Len
                                                                   : std::ptrdiff_t{step0_} * count;
        flat_ = data_ = Memory::region<T>(elements);
        fill(data_, elements);
        constexpr bool repeats = kind == Kind::common || kind == Kind::constants;
        if constexpr (repeats && layout == Layout::packed) flat_ = Memory::region<T>(std::ptrdiff_t{Len} * count);
        if constexpr (layout == Layout::list) table_ = Memory::region<T*>(count);
        if constexpr (layout == Layout::planes) table_ = Memory::region<T*>(Len);

        if constexpr (kind == Kind::common) object_ = Spread(data_, Eigen::InnerStride<>(step2_));
        if constexpr (repeats && layout == Layout::packed)
            for (int n = 0; n < count; ++n)
                Eigen::Map<Object>(flat_ + std::ptrdiff_t{n} * Len) = Object::Zero() + at(n);
        if constexpr (layout == Layout::list && kind != Kind::common) {
            constexpr int stirred[] = {387, 621, 783};
            const int size = kind == Kind::array ? Len : 1;
            for (int n = 0; n < count; ++n) table_[n] = data_ + std::int64_t{n} * stirred[index] % count * size;
        }
        if constexpr (layout == Layout::planes) {
            const std::ptrdiff_t apart = kind == Kind::array ? planeStep : 1;
            for (int i = 0; i < Len; ++i) table_[i] = data_ + i * apart;
        }
    }

    // As arguments of our functions.
    auto arguments() const
    {
        if constexpr (kind == Kind::constant)
            return std::tuple(val_);
        else if constexpr (layout == Layout::list && kind == Kind::array)
            return std::tuple(table_, 0, bytes);
        else if constexpr (layout == Layout::list && kind == Kind::constants)
            return std::tuple(table_, 0);
        else if constexpr (layout == Layout::planes && kind == Kind::array)
            return std::tuple(table_, 0, bytes);
        else if constexpr (layout == Layout::planes && kind == Kind::common)
            return std::tuple(table_, 0);
        else if constexpr (kind == Kind::array)
            return std::tuple(data_, step0_ * bytes, step2_ * bytes);
        else
            return std::tuple(data_, kind == Kind::common ? step2_ * bytes : bytes);
    }

    // One object.
    decltype(auto) at(std::ptrdiff_t n) const
    {
        if constexpr (kind == Kind::common)
            return (object_);
        else if constexpr (kind == Kind::constant)
            return (val_);
        else if constexpr (kind == Kind::constants)
            return T(layout == Layout::list ? *table_[n] : data_[n]);
        else if constexpr (layout == Layout::list)
            return Eigen::Map<Object>(table_[n]);
        else if constexpr (isAnyStride)
            return Spread(data_ + n * step0_, Eigen::InnerStride<>(step2_));
        else
            return Eigen::Map<Object>(data_ + n * step);
    }

    // All objects as one long vector.
    auto flat() const
    {
        const Eigen::Index elements = Eigen::Index{Len} * count_;
        if constexpr (kind == Kind::constant)
            return Long::Constant(elements, val_);
        else
            return Eigen::Map<Long>(flat_, elements);
    }

    // All objects as the columns of a matrix.
    auto wide() const
    {
        using Eigen::Dynamic;
        if constexpr (kind == Kind::common)
            return Eigen::Replicate<Object, 1, Dynamic>(object_, 1, count_);
        else if constexpr (kind == Kind::constant)
            return Wide::Constant(Len, count_, val_);
        else if constexpr (kind == Kind::constants)
            return Eigen::Map<Eigen::Array<T, 1, Dynamic>>(data_, count_).template replicate<Len, 1>();
        else if constexpr (isAnyStride)
            return Eigen::Map<Wide, 0, Eigen::Stride<Dynamic, Dynamic>>(data_, Len, count_, {step0_, step2_});
        else
            return Eigen::Map<Wide, 0, Eigen::OuterStride<step>>(data_, Len, count_);
    }

    // Element i of all objects.
    auto plane(int i) const
    {
        if constexpr (kind == Kind::constant)
            return val_;
        else if constexpr (kind == Kind::common)
            return T(object_[i]);
        else
            return Eigen::Map<Long>(kind == Kind::constants ? data_ : table_[i], count_);
    }

    T* data() const { return data_; }
    std::span<std::byte> memory() const
    {
        const std::ptrdiff_t elements =
            layout == Layout::planes ? table_[Len - 1] + count_ - data_ : std::ptrdiff_t{step0_} * count_;
        return {reinterpret_cast<std::byte*>(data_), static_cast<std::size_t>(elements * bytes)};
    }

private:
    T *data_, *flat_;
    T** table_ = nullptr;
    int count_, step0_ = step, step2_ = 1;
    T val_ = static_cast<T>(1.25);
    Object object_ = Object::Zero();
};

// Moves a packed row's bytes and adds where there is something to add: what the memory allows.
inline __m128 load(const float* p) { return _mm_loadu_ps(p); }
inline __m128d load(const double* p) { return _mm_loadu_pd(p); }
inline void store(float* p, __m128 v) { _mm_storeu_ps(p, v); }
inline void store(double* p, __m128d v) { _mm_storeu_pd(p, v); }

template <int Len, Kind kindA, Kind kindB, class T>
[[gnu::noinline]] void moveBytes(const T* a, const T* b, T* dst, int count)
{
    constexpr int width = 16 / static_cast<int>(sizeof(T));
    constexpr bool arrayA = kindA == Kind::array, arrayB = kindB == Kind::array, constants = kindB == Kind::constants;
    auto c = load(b);
    for (int n = 0; n + width <= count; n += width) {
        if constexpr (constants) c = load(b + n);
        for (int j = 0; j < Len; ++j) {
            auto v = c;
            if constexpr (arrayA) v = load(a + j * width);
            if constexpr (arrayB) v = v + load(b + j * width);
            if constexpr (arrayA && constants) v = v + c;
            store(dst + j * width, v);
        }
        if constexpr (arrayA) a += Len * width;
        if constexpr (arrayB) b += Len * width;
        dst += Len * width;
    }
}

template <class Op, int Len, Layout layout, Kind kindA, Kind kindB, class T, class Function>
Task elementwiseTask(Function* ours, int count)
{
    const Operand<T, Len, kindA, layout> a(0, count);
    const Operand<T, Len, kindB, layout> b(1, count);
    const Operand<T, Len, Kind::array, layout> dst(2, count);
    const Op combine;
    constexpr bool repeats = kindA == Kind::common || kindB == Kind::common || kindB == Kind::constants;

    Task task;
    const auto add = [&](const std::string& name, auto work) { task.contestants.push_back({name, work}); };
    const auto sources = [&] {
        if constexpr (Op::factors == 2)
            return std::tuple_cat(a.arguments(), std::tuple(combine.val1), b.arguments(), std::tuple(combine.val2));
        else if constexpr (Op::factors == 1)
            return std::tuple_cat(a.arguments(), std::tuple(combine.val), b.arguments());
        else
            return std::tuple_cat(a.arguments(), b.arguments());
    }();
    const auto arguments = std::tuple_cat(sources, dst.arguments(), std::tuple(Len, count));
    add("vorm", [=] { std::apply(ours, arguments); });
    if constexpr (layout == Layout::packed) {
        add(bandwidth, [=] { moveBytes<Len, kindA, kindB>(a.data(), b.data(), dst.data(), count); });
        add("long map", [=] { dst.flat() = combine(a.flat(), b.flat()); });
    }
    if constexpr (layout == Layout::slots || layout == Layout::anyStride || (layout == Layout::packed && repeats))
        add("replicate", [=] { dst.wide() = combine(a.wide(), b.wide()); });
    if constexpr (layout == Layout::planes)
        add("plane by plane", [=] {
            for (int i = 0; i < Len; ++i) dst.plane(i) = combine(a.plane(i), b.plane(i));
        });
    else
        add("fixed loop", [=] {
            const auto localA = a;  // held in registers, not read again after each store
            const auto localB = b;
            const auto localDst = dst;
            for (int n = 0; n < count; ++n) localDst.at(n) = combine(localA.at(n), localB.at(n));
        });
    if constexpr (layout == Layout::packed && repeats)
        add("fixed loop by reference", [=] {  // the same, if the compiler cannot know that nothing overlaps
            for (int n = 0; n < count; ++n) dst.at(n) = combine(a.at(n), b.at(n));
        });
    if (count <= residentObjects) task.result = dst.memory();
    return task;
}

struct ElementwiseSections {
    Section &packed, &packedStreaming, &slots, &slotsStreaming, &anyStride, &list, &planes, &planesStreaming;
};

template <class Op, int Len, Layout layout, Kind kindA, Kind kindB, class T, class Function>
void addRow(Section* resident, Section* streaming, const char* member, Function* function)
{
    constexpr bool held = layout == Layout::packed && Len <= 6;
    constexpr bool common =
        kindA == Kind::array && kindB == Kind::common && sizeof(T) == sizeof(float) && std::is_base_of_v<Sum, Op>;
    const auto add = [&](Section& section, int count, double wanted) {
        section.rows.push_back({std::string(member) + " len " + std::to_string(Len), count,
                                [=] { return elementwiseTask<Op, Len, layout, kindA, kindB, T>(function, count); },
                                held ? wanted : 0});
    };
    constexpr auto objectBytes = static_cast<std::size_t>(Operand<T, Len, Kind::array, layout>::step) * sizeof(T);
    add(*resident, residentObjects, common ? 2 : 1);
    if (streaming) add(*streaming, static_cast<int>(streamingBytes() / objectBytes / 16 * 16), 1);
}

template <class Op, Kind kindA, Kind kindB, class T, int... Len, class M>
void addShape(ElementwiseSections& s, const M& m)
{
    (..., [&] {
        addRow<Op, Len, Layout::packed, kindA, kindB, T>(&s.packed, &s.packedStreaming, m.name, m.standard);
        addRow<Op, Len, Layout::slots, kindA, kindB, T>(&s.slots, Len < 5 ? &s.slotsStreaming : nullptr, m.name,
                                                        m.standard);
        addRow<Op, Len, Layout::anyStride, kindA, kindB, T>(&s.anyStride, nullptr, m.name, m.standard);
        addRow<Op, Len, Layout::list, kindA, kindB, T>(&s.list, nullptr, m.name, m.list);
        addRow<Op, Len, Layout::planes, kindA, kindB, T>(&s.planes, Len < 5 ? &s.planesStreaming : nullptr, m.name,
                                                         m.pointers);
    }());
}

// Each element type in its own file.
void addElementwise32f(ElementwiseSections& sections);
void addElementwise64f(ElementwiseSections& sections);
void addScaling32f(ElementwiseSections& sections);
void addScaling64f(ElementwiseSections& sections);

}  // namespace bench
