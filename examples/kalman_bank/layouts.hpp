// Matrices and vectors of all filters in two layouts, so that the filter can be written once for both.
//
// An operand of a call is a pointer and a few numbers; the layout decides which, and everything else of the
// argument list is the same. The operands below say what stands for them in an argument list, and a Member puts
// it there: product(a, 6, 6, b, 6, 6, d, count).
#pragma once

#include <vorm/vorm.h>

#include <array>
#include <tuple>
#include <type_traits>
#include <vector>

#include "common/stages.hpp"

namespace kalman {

template <class Argument>
auto argumentsOf(const Argument& argument)
{
    if constexpr (requires { argument.arguments(); })
        return argument.arguments();
    else
        return std::tuple(argument);  // a size, the count, the row numbers of a decomposition
}

// A function of the library that takes operands of a layout.
template <class Function>
struct Member {
    const char* name;
    Function* function;

    template <class... Arguments>
    void operator()(const Arguments&... arguments) const
    {
        examples::expectOk(std::apply(function, std::tuple_cat(argumentsOf(arguments)...)), name);
    }
};

// Object after object, row after row: the standard layout. A block of all matrices, or a stretch of all vectors,
// is the same strides from another first element on.
template <class T>
struct Packed {
    using Element = T;
    static constexpr const char* name = "packed";
    static constexpr int element = sizeof(T);

    template <class Pointer>
    struct Matrices {
        Pointer p;
        int stride0, stride1;
        auto arguments() const { return std::tuple(p, stride0, stride1, element); }
    };
    template <class Pointer>
    struct Vectors {
        Pointer p;
        int stride0;
        auto arguments() const { return std::tuple(p, stride0, element); }
    };
    struct Common {  // one matrix for all filters
        const T* p;
        int stride1;
        auto arguments() const { return std::tuple(p, stride1, element); }
    };
    static Common common(const T* p, int /*rows*/, int columns) { return {p, columns * element}; }

    // count matrices of rows x columns, or vectors, of one row.
    class Array {
    public:
        Array(int rows, int columns, int count)
            : columns_(columns), size_(rows * columns), values_(static_cast<std::size_t>(size_ * count))
        {
        }

        int size() const { return size_; }
        T& at(int n, int i) { return values_[static_cast<std::size_t>(n * size_ + i)]; }
        const T& at(int n, int i) const { return values_[static_cast<std::size_t>(n * size_ + i)]; }

        // From object n on.
        Matrices<T*> matrices(int n) { return {&at(n, 0), size_ * element, columns_ * element}; }
        Matrices<T*> block(int n, int row, int column, int /*rows*/, int /*columns*/)
        {
            return {&at(n, row * columns_ + column), size_ * element, columns_ * element};
        }
        Vectors<T*> vectors(int n) { return {&at(n, 0), size_ * element}; }
        Vectors<const T*> vectors(int n) const { return {&at(n, 0), size_ * element}; }
        Vectors<T*> stretch(int n, int first, int /*length*/) { return {&at(n, first), size_ * element}; }

    private:
        int columns_, size_;
        std::vector<T> values_;
    };

    // The one for this layout and type, of the members of a shape.
    template <class F32, class F64, class P32, class P64>
    static constexpr auto member(const char* function, F32* f32, F64* f64, P32*, P64*)
    {
        if constexpr (std::is_same_v<T, float>)
            return Member<F32>{function, f32};
        else
            return Member<F64>{function, f64};
    }
};

// An array for each element, with that of every filter side by side: the pointer layout. A block or a
// stretch is a table with the pointers to its elements.
template <class T>
struct StructureOfArrays {
    using Element = T;
    static constexpr const char* name = "structure of arrays";
    static constexpr int element = sizeof(T);

    template <class Pointer>
    struct Operand {                    // matrices and vectors are described alike
        std::array<Pointer, 36> table;  // of order 6 at most
        auto arguments() const { return std::tuple(table.data(), 0, element); }
    };
    struct Common {  // one matrix for all filters
        std::array<const T*, 36> table;
        auto arguments() const { return std::tuple(table.data(), 0); }
    };
    static Common common(const T* p, int rows, int columns)
    {
        Common result;
        for (int i = 0; i < rows * columns; ++i) result.table[static_cast<std::size_t>(i)] = p + i;
        return result;
    }

    class Array {
    public:
        // Arrays a power of two apart would be rivals for the same lines of the cache.
        Array(int rows, int columns, int count)
            : rows_(rows),
              columns_(columns),
              length_((count + 15) / 16 * 16 + 16),
              values_(static_cast<std::size_t>(rows * columns * length_))
        {
        }

        int size() const { return rows_ * columns_; }
        T& at(int n, int i) { return values_[static_cast<std::size_t>(i * length_ + n)]; }
        const T& at(int n, int i) const { return values_[static_cast<std::size_t>(i * length_ + n)]; }

        // From object n on.
        Operand<T*> matrices(int n) { return block(n, 0, 0, rows_, columns_); }
        Operand<T*> block(int n, int row, int column, int rows, int columns)
        {
            Operand<T*> result;
            for (int r = 0, k = 0; r < rows; ++r)
                for (int c = 0; c < columns; ++c, ++k)
                    result.table[static_cast<std::size_t>(k)] = &at(n, (row + r) * columns_ + column + c);
            return result;
        }
        Operand<T*> vectors(int n) { return stretch(n, 0, size()); }
        Operand<const T*> vectors(int n) const
        {
            Operand<const T*> result;
            for (int i = 0; i < size(); ++i) result.table[static_cast<std::size_t>(i)] = &at(n, i);
            return result;
        }
        Operand<T*> stretch(int n, int first, int length)
        {
            Operand<T*> result;
            for (int i = 0; i < length; ++i) result.table[static_cast<std::size_t>(i)] = &at(n, first + i);
            return result;
        }

    private:
        int rows_, columns_, length_;
        std::vector<T> values_;
    };

    template <class F32, class F64, class P32, class P64>
    static constexpr auto member(const char* function, F32*, F64*, P32* p32, P64* p64)
    {
        if constexpr (std::is_same_v<T, float>)
            return Member<P32>{function, p32};
        else
            return Member<P64>{function, p64};
    }
};

// An array in that layout of what packed numbers say, and back again.
template <class Layout>
typename Layout::Array arrayOf(int rows, int columns, const std::vector<double>& packed)
{
    const int size = rows * columns, count = static_cast<int>(packed.size()) / size;
    typename Layout::Array array(rows, columns, count);
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < size; ++i)
            array.at(n, i) = static_cast<typename Layout::Element>(packed[static_cast<std::size_t>(n * size + i)]);
    return array;
}

template <class Array>
std::vector<double> packedNumbers(const Array& array, int count)
{
    std::vector<double> packed;
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < array.size(); ++i) packed.push_back(static_cast<double>(array.at(n, i)));
    return packed;
}

}  // namespace kalman
