#pragma once
// Plays calls of generated worlds in a given reading mode and measures each: CPU time of the
// call, host calls, and the process's peak memory while it ran.
#include "host/ReadMode.h"
#include "native/SimPlatform.h"
#include "sim/Player.h"
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

// One plug-in instance over the simulated host, kept from call to call as the host keeps it;
// every call is played on a fresh world.
class Partida {
  public:
    explicit Partida(host::ReadMode modo);
    Medida juega(sim::World world, const sim::CallSpec& call);

  private:
    sim::Simulation simulation_;
    native::SimPlatform platform_;
    sim::Player player_;
};

// Starts a new peak-memory measure (Linux: the resident set's high-water mark is reset, after
// freed memory has been given back). False when the system does not allow it.
bool reiniciaPico();
double picoMB();  // since the last reset, or of the whole process

}  // namespace bench
