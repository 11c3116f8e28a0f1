// Costs of the checks that run on every keystroke or on every press of OK. Tracing is off, as
// it is unless a host asks for it.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "app/headless_services.h"
#include "component/context.h"
#include "dialogs/biller/web_address_checks.h"
#include "validation/address_rules.h"
#include "validation/random.h"
#include "validation/text.h"
#include "verifier/bank_rules.h"

namespace {

using nvrandom::Context;
using nvrandom::Random;

std::unique_ptr<Context> MakeContext() {
  auto ctx = std::make_unique<Context>(nvrandom::headless::MakeHeadlessServices().services);
  ctx->store.poBoxWords = nvrandom::validation::SplitPoBoxWords();
  ctx->store.PlayByPlayEnabled = 0;
  return ctx;
}

// A kibibyte of pasted text: mostly kept characters, with quotes, tabs and accented letters.
std::string PastedText() {
  const std::string line =
      "1200 \"Rue de la Montagne\"\tMontr\xC3\xA9"
      "al QC H3G 1Z2 ~ suite 4; ";
  std::string text;
  while (text.size() < 1024) text += line;
  text.resize(1024);
  return text;
}

void BM_CleanseCharacters(benchmark::State& state) {
  const std::string text = PastedText();
  for (auto _ : state) benchmark::DoNotOptimize(nvrandom::validation::CleanseCharacters(text));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(text.size()));
}
BENCHMARK(BM_CleanseCharacters);

// Argument 0: a domestic biller (checksum only); 1: a US biller (prefix pattern as well).
void BM_ValidateABANumber(benchmark::State& state) {
  auto ctx = MakeContext();
  ctx->store.WhatKindOfBiller.assign(1, state.range(0) == 0 ? ' ' : 'U');
  Random random(*ctx);
  for (auto _ : state) benchmark::DoNotOptimize(random.ValidateABANumber("021000021"));
}
BENCHMARK(BM_ValidateABANumber)->Arg(0)->Arg(1);

void BM_HasPoBoxAddress(benchmark::State& state) {
  auto ctx = MakeContext();
  Random random(*ctx);
  // 60 characters, not a box: every word of the list is tried.
  const std::string street = "  1200 Rue de la Montagne Ouest   Suite 400 Building East  ";
  for (auto _ : state) benchmark::DoNotOptimize(random.Has_PO_Box_Address(street));
}
BENCHMARK(BM_HasPoBoxAddress);

void BM_ValidateEmailAddress(benchmark::State& state) {
  auto ctx = MakeContext();
  const std::string address = "jane.doe@mail.example.ca";  // a typical 24-character address
  for (auto _ : state) {
    std::string message;
    benchmark::DoNotOptimize(nvrandom::ValidateEmailAddress(*ctx, address, message, false));
  }
}
BENCHMARK(BM_ValidateEmailAddress);

// The whole module check: a verifier created, given the session values, asked and released.
void BM_ValidateBankAccount(benchmark::State& state) {
  auto ctx = MakeContext();
  ctx->store.NorvikProgramVersion = "7.05";
  ctx->store.DLLPath = "/opt/host/NORVIK/Bin";
  Random random(*ctx);
  for (auto _ : state) {
    std::string message;
    int16_t length = 0;
    benchmark::DoNotOptimize(
        random.ValidateBankAccount("002", "12345", "123456789012", message, length));
  }
}
BENCHMARK(BM_ValidateBankAccount);

// The built-in verifier's rule alone.
void BM_BankAccountRule(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(nvrandom::verifier::CheckBankAccount("002", "12345", "123456789012"));
  }
}
BENCHMARK(BM_BankAccountRule);

void BM_VerifyBusinessNumber(benchmark::State& state) {
  auto ctx = MakeContext();
  Random random(*ctx);
  for (auto _ : state) benchmark::DoNotOptimize(random.VerifyBusinessNumber("046454286"));
}
BENCHMARK(BM_VerifyBusinessNumber);

}  // namespace
