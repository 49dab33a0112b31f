#pragma once

/** Benchmarks with the program's windows: they need a display and the toolkits. */
namespace WindowBenchmarks {

/**
 * Starts the toolkits as the program does, registers the benchmarks, runs them and prints their
 * table.
 *
 * @return what the benchmark program ends with
 */
int run(int argc, char** argv, void (*registerAll)());

} // namespace WindowBenchmarks
