// SPDX-License-Identifier: MIT
#include "console/site/provider_fields.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

#include "console/site/names.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

constexpr char kCompany[] = "a provider's company", kRegionA[] = "the first part of the location",
               kRegionB[] = "the second part of the location", kPhone[] = "the phone number";

constexpr std::array<std::string_view, 3> kParities = {"none", "odd", "even"}, kStopBits = {"1", "1.5", "2"};

/// A number that no field takes stands for what is none.
constexpr std::uint32_t kNoNumber = 0, kNoCode = ~0u;

template <auto Member, const char* What>
std::string TakeText(Provider& provider, std::string_view text) {
  constexpr std::size_t kLimit = std::remove_reference_t<decltype(provider.*Member)>::kMaxLength;
  if (text.size() > kLimit)
    return What + (" has at most " + std::to_string(kLimit)) + " bytes: this one has " +
           std::to_string(text.size());
  // The record would end there.
  if (text.find('\0') != text.npos) return NameProblem(What, std::string(text), kLimit);
  (provider.*Member).Assign(text);
  return {};
}

template <auto Member>
std::string TakeNumber(Provider& provider, std::string_view text) {
  std::uint32_t number = kNoNumber;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  provider.*Member = error == std::errc() && end == text.data() + text.size() ? number : kNoNumber;
  return {};
}

template <auto Member, const auto& Names>
std::string TakeCode(Provider& provider, std::string_view text) {
  std::uint32_t code = 0;
  while (code < Names.size() && !platform::EqualIgnoringCase(Names.at(code), text)) ++code;
  provider.*Member = code < Names.size() ? code : kNoCode;
  return {};
}

template <auto Member>
std::string Text(const Provider& provider) {
  return std::string((provider.*Member).View());
}

template <auto Member>
std::string Number(const Provider& provider) {
  return std::to_string(provider.*Member);
}

template <auto Member, const auto& Names>
std::string Code(const Provider& provider) {
  const std::uint32_t code = provider.*Member;
  return code < Names.size() ? std::string(Names.at(code)) : std::to_string(code);
}

/// A part of the location may be left out; what is there must be readable.
template <auto Member, const char* What>
std::string PartProblem(const Provider& provider) {
  const std::string text = Text<Member>(provider);
  return text.empty() ? "" : NameProblem(What, text, text.size());
}

std::string CompanyProblem(const Provider& provider) {
  return NameProblem(kCompany, Text<&Provider::company>(provider), decltype(provider.company)::kMaxLength);
}

std::string PhoneProblem(const Provider& provider) {
  const std::string_view phone = provider.phone.View();
  if (phone.find_first_of("0123456789") == std::string_view::npos)
    return "the phone number has at least one digit: enter what the modem dials";
  if (phone.find_first_not_of("0123456789 ()-,+*#") != std::string_view::npos)
    return "the phone number has digits, brackets, commas, hyphens and blanks: correct \"" +
           std::string(phone) + "\"";
  return {};
}

template <auto Member, std::uint32_t From, std::uint32_t To, const char* Sentence>
std::string RangeProblem(const Provider& provider) {
  const std::uint32_t number = provider.*Member;
  return number < From || number > To ? Sentence : "";
}

constexpr char kBaudRates[] = "the baud rate is a number from 1 on, such as 2400",
               kWhichParities[] = "the parity is none, odd or even",
               kWhichDataBits[] = "there are 6, 7 or 8 data bits",
               kWhichStopBits[] = "the stop bits are 1, 1.5 or 2",
               kTextLengths[] = "the text length is a number from 1 to 255, as a pager service can hold it";

template <auto Member, const char* What>
constexpr ProviderField TextField(std::string_view name, bool required,
                                  std::string (*problem)(const Provider&)) {
  return {name, required, TakeText<Member, What>, problem, Text<Member>};
}

template <auto Member, std::uint32_t From, std::uint32_t To, const char* Sentence>
constexpr ProviderField NumberField(std::string_view name) {
  return {name, true, TakeNumber<Member>, RangeProblem<Member, From, To, Sentence>, Number<Member>};
}

template <auto Member, const auto& Names, const char* Sentence>
constexpr ProviderField CodeField(std::string_view name) {
  return {name, true, TakeCode<Member, Names>, RangeProblem<Member, 0, Names.size() - 1, Sentence>,
          Code<Member, Names>};
}

}  // namespace

std::string ProviderField::Take(Provider& provider, std::string_view written) const {
  written.remove_prefix(std::min(written.find_first_not_of(" \t"), written.size()));
  written = written.substr(0, written.find_last_not_of(" \t") + 1);
  const std::string misfit = take(provider, written);
  return misfit.empty() ? problem(provider) : misfit;
}

const std::array<ProviderField, 9>& ProviderFields() {
  using P = Provider;
  static constexpr std::array<ProviderField, 9> fields = {
      TextField<&P::company, kCompany>("company", true, CompanyProblem),
      TextField<&P::regionA, kRegionA>("region A", false, PartProblem<&P::regionA, kRegionA>),
      TextField<&P::regionB, kRegionB>("region B", false, PartProblem<&P::regionB, kRegionB>),
      TextField<&P::phone, kPhone>("phone", true, PhoneProblem),
      NumberField<&P::baudRate, 1, ~0u, kBaudRates>("baud rate"),
      CodeField<&P::parity, kParities, kWhichParities>("parity"),
      NumberField<&P::dataBits, 6, 8, kWhichDataBits>("data bits"),
      CodeField<&P::stopBits, kStopBits, kWhichStopBits>("stop bits"),
      NumberField<&P::maxTextLength, 1, 255, kTextLengths>("text length")};
  return fields;
}

}  // namespace site
