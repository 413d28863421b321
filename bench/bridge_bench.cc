// What hostile lines cost the bridge: a 200 MB line read by Session::Serve
// against the same line read whole by std::getline (what the bridge did
// before its limits), and requests built to make it allocate or loop
// against a sound request of the same size. peak_rss_MB is the process's
// high-water mark once the benchmark has run: run the long-line pair alone
// and in this order to compare them.

#include <sys/resource.h>

#include <istream>
#include <sstream>
#include <streambuf>
#include <string>

#include <benchmark/benchmark.h>

#include "automation/session.h"

namespace zerbal::automation {
namespace {

constexpr size_t kLongLine = size_t{200} << 20;

// An input of one line of `size` bytes, then a sound request, made as it is
// read so that the input itself takes no memory.
class LongLine : public std::streambuf {
 public:
  explicit LongLine(size_t size) : left_(size) {}

 protected:
  int_type underflow() override {
    if (left_ > 0) {
      const size_t n = std::min(left_, chunk_.size());
      left_ -= n;
      setg(chunk_.data(), chunk_.data(), chunk_.data() + n);
      return traits_type::to_int_type(chunk_[0]);
    }
    if (tail_done_) return traits_type::eof();
    tail_done_ = true;
    setg(tail_.data(), tail_.data(), tail_.data() + tail_.size());
    return traits_type::to_int_type(tail_[0]);
  }

 private:
  size_t left_;
  std::string chunk_ = std::string(1 << 16, 'a');
  std::string tail_ = "\n{\"id\": 2, \"op\": \"classes\"}\n";
  bool tail_done_ = false;
};

void PeakMemory(benchmark::State& state) {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["peak_rss_MB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

void BM_ServeLongLine(benchmark::State& state) {
  for (auto _ : state) {
    LongLine input(kLongLine);
    std::istream in(&input);
    std::ostringstream out;
    Session().Serve(in, out);
    benchmark::DoNotOptimize(out.str());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * kLongLine));
  PeakMemory(state);
}
BENCHMARK(BM_ServeLongLine)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_BaselineGetlineLongLine(benchmark::State& state) {
  for (auto _ : state) {
    LongLine input(kLongLine);
    std::istream in(&input);
    for (std::string line; std::getline(in, line);) benchmark::DoNotOptimize(line.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * kLongLine));
  PeakMemory(state);
}
BENCHMARK(BM_BaselineGetlineLongLine)->Unit(benchmark::kMillisecond)->Iterations(3);

// A request that would allocate 2^24 elements, loop over 2^31 subscripts or
// nest 75,000 levels, each answered 5 by the bridge.
const std::string kLet = R"({"op": "let", "handle": 1, "name": "x", "value": )";
const std::string kHostile[] = {
    kLet + R"({"type": "Array", "bounds": [[0, 16777215]], "elements": []}})",
    kLet + R"({"type": "Array", "bounds": [[0, -1], [0, 2147483647]], "elements": [1]}})",
    kLet + std::string(75000, '[') + std::string(75000, ']') + "}",
};

void Answer(benchmark::State& state, const std::string& request) {
  Session session;
  session.Answer(R"({"op": "create", "class": "Brevandol.cMiscelaneos"})");
  for (auto _ : state) benchmark::DoNotOptimize(session.Answer(request));
}

void BM_AnswerHostile(benchmark::State& state) { Answer(state, kHostile[state.range(0)]); }
BENCHMARK(BM_AnswerHostile)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// A sound let of an array with one element: answered 438 (no member "x").
void BM_BaselineAnswerSound(benchmark::State& state) {
  Answer(state, kLet + R"({"type": "Array", "bounds": [[0, 0]], "elements": [1]}})");
}
BENCHMARK(BM_BaselineAnswerSound)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zerbal::automation
