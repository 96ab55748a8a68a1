#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>

#include "core/backup/clsHuffman.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kLength = std::size_t{32} << 20;

/// What a company's file is made of: pages of rows with small numbers, dates, names and memos, and unused
/// room.
Bytes Company_Bytes() {
  std::mt19937 random(1031);
  const char* const names[] = {"Acme Supply", "Harbor Electric", "Quillbrook Paper", "City of Marlow", "Payroll"};
  const char* const memos[] = {"", "Invoice", "Office supplies for the front desk", "Monthly rent", "Deposit"};
  Bytes bytes;
  bytes.reserve(kLength + 4096);
  while (bytes.size() < kLength) {
    const auto page_end = bytes.size() + 4096;
    bytes.insert(bytes.end(), 8 + random() % 600, 0);
    while (bytes.size() + 160 < page_end) {
      char row[160];
      const int used = std::snprintf(row, sizeof row, "20%02u-%02u-%02u%s%s %u", unsigned(random() % 25),
                                     unsigned(random() % 12 + 1), unsigned(random() % 28 + 1), names[random() % 5],
                                     memos[random() % 5], unsigned(random() % 100000));
      for (int i = 0; i < 12; ++i) bytes.push_back(static_cast<std::uint8_t>(random() % (i % 4 == 0 ? 256 : 8)));
      for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<std::uint8_t>(random()));
      bytes.insert(bytes.end(), row, row + used);
    }
    bytes.resize(page_end);
  }
  bytes.resize(kLength);
  return bytes;
}

const Bytes& Plain() {
  static const Bytes bytes = Company_Bytes();
  return bytes;
}

/// Runs one direction on a fresh copy each time; speed counts the uncompressed bytes.
template <class Operation>
void Measure(benchmark::State& state, const Bytes& input, Operation operation) {
  tallymere::clsHuffman huffman;
  int percent = 0;
  huffman.Progress = [&](int value) { percent = value; };
  for (auto _ : state) {
    state.PauseTiming();
    Bytes bytes = input;
    state.ResumeTiming();
    operation(huffman, bytes);
    benchmark::DoNotOptimize(bytes.data());
  }
  benchmark::DoNotOptimize(percent);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kLength));
}

void Backup_Encode(benchmark::State& state) {
  Measure(state, Plain(), [](const auto& huffman, Bytes& bytes) { huffman.EncodeByte(bytes); });
}
BENCHMARK(Backup_Encode)->Unit(benchmark::kMillisecond);

void Backup_Decode(benchmark::State& state) {
  Bytes packed = Plain();
  tallymere::clsHuffman().EncodeByte(packed);
  state.counters["ratio"] = static_cast<double>(packed.size()) / static_cast<double>(kLength);
  Measure(state, packed, [](const auto& huffman, Bytes& bytes) { huffman.DecodeByte(bytes); });
}
BENCHMARK(Backup_Decode)->Unit(benchmark::kMillisecond);

}  // namespace
