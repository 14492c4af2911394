// What the example programs share around their calls of the library.
#pragma once

#include <vorm/vorm.h>

#include <functional>
#include <initializer_list>
#include <string>

#include "common/obj_reader.hpp"

namespace examples {

// Throws std::runtime_error that names the function, unless the status is StatusOk.
void expectOk(VormStatus status, const char* function);

// Prints the version of the library.
void printVersion();

// A mesh of the folder data that comes with the examples.
Mesh readData(const std::string& name);

// The most threads a call may use. Each of them wants a part of the buffer that some functions take.
int threads();

// How a stage of a program is run, so that one program can time what another one only uses: work may
// be called more than once and has to give the same each time. threads are the numbers of threads worth
// trying, 0 is the library's default. The result are nanoseconds per object with the last of them, or 0.
using Stage = double (*)(const char* what, int objects, std::initializer_list<int> threads,
                         const std::function<void()>& work);

double once(const char* what, int objects, std::initializer_list<int> threads, const std::function<void()>& work);

// Prints the nanoseconds per object of the fastest run with each number of threads.
double timed(const char* what, int objects, std::initializer_list<int> threads, const std::function<void()>& work);

// The main function of a program called as PROGRAM [input.obj [output.png]]: 0 if run did not throw. What
// it threw goes to standard error, with the line of the input for a bad mesh.
int runProgram(int argc, char** argv, const char* defaultOutput,
               void (*run)(const std::string& input, const std::string& output));

}  // namespace examples
