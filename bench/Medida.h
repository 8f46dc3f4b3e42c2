#pragma once
// Plays one call of a generated world in a given reading mode and measures it: CPU time of the
// call, host calls, and the process's peak memory while it ran.
#include "host/ReadMode.h"
#include "sim/Scenario.h"
#include "sim/World.h"

namespace bench {

struct Medida {
    double segundos = 0;  // CPU
    int64_t llamadas = 0;
    double picoMB = 0;     // the largest peak of the calls measured
    int64_t dialogos = 0;  // dialogs shown
    void suma(const Medida& otra);
};

Medida juega(sim::World world, const sim::CallSpec& call, host::ReadMode modo);

// Starts a new peak-memory measure (Linux: the resident set's high-water mark is reset, after
// freed memory has been given back). False when the system does not allow it.
bool reiniciaPico();
double picoMB();  // since the last reset, or of the whole process

}  // namespace bench
