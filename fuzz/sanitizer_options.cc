// The sanitizers' settings for every fuzz target, over their defaults: a
// small quarantine and short allocation stacks, which make a run several
// times faster (a finding is replayed with ASAN_OPTIONS to see more); full
// stacks for undefined behaviour.

extern "C" const char* __asan_default_options() {
  return "malloc_context_size=2:quarantine_size_mb=16";
}

extern "C" const char* __ubsan_default_options() { return "print_stacktrace=1"; }
