// SPDX-License-Identifier: MIT
#include "console/site/provider_import.h"

#include <algorithm>
#include <set>
#include <utility>

#include "console/site/advice.h"
#include "console/site/csv.h"
#include "console/site/provider_fields.h"
#include "console/site/text_file.h"
#include "platform/base/utf8.h"

namespace site {
namespace {

constexpr std::size_t kMostMegabytes = 5;

class Reader {
 public:
  void Take(const CsvRow& row);
  ProviderFile Finish(std::size_t misquoted_line);

 private:
  void TakeHeader(const CsvRow& row);
  void TakeColumn(std::size_t line, const std::string& name);
  void TakeProvider(const CsvRow& row);
  void Note(std::size_t line, std::string fault);
  void Note(std::size_t line, std::size_t column, const std::string& fault);

  std::vector<const ProviderField*> columns_;
  bool header_is_whole_ = false;
  ProviderFile file_;
};

/// Fields bring line breaks of their own along.
void Reader::Note(std::size_t line, std::string fault) {
  std::ranges::replace_if(
      fault, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  file_.faults.push_back("line " + std::to_string(line) + fault);
}

void Reader::Note(std::size_t line, std::size_t column, const std::string& fault) {
  Note(line,
       ", column " + std::to_string(column + 1) + " (" + std::string(columns_[column]->name) + "): " + fault);
}

void Reader::Take(const CsvRow& row) {
  if (columns_.empty()) return TakeHeader(row);
  if (header_is_whole_) TakeProvider(row);
}

void Reader::TakeHeader(const CsvRow& row) {
  for (const std::string& name : row.fields) TakeColumn(row.line, name);
  for (const ProviderField& field : ProviderFields())
    if (field.required && std::ranges::find(columns_, &field) == columns_.end())
      Note(row.line, ": there is no column \"" + std::string(field.name) + "\": add it");
  header_is_whole_ = file_.faults.empty();
}

/// A name that means nothing may be a misspelt one, whose values would be lost.
void Reader::TakeColumn(std::size_t line, const std::string& name) {
  const auto& fields = ProviderFields();
  const auto field = std::ranges::find_if(
      fields, [&](const ProviderField& each) { return platform::EqualIgnoringCase(each.name, name); });
  const std::string where = ", column " + std::to_string(columns_.size() + 1) + ": ";
  const std::string shown = "\"" + name.substr(0, platform::Utf8Prefix(name, 64)) + "\"";
  if (field == fields.end())
    Note(line, where + "no column of a provider is called " + shown + ": correct it or leave it out");
  else if (std::ranges::find(columns_, &*field) != columns_.end())
    Note(line, where + "there is a column " + shown + " already: leave one out");
  columns_.push_back(field == fields.end() ? nullptr : &*field);
}

/// Tables end in rows that never held anything.
void Reader::TakeProvider(const CsvRow& row) {
  if (std::ranges::all_of(row.fields, &std::string::empty)) return;
  if (row.fields.size() != columns_.size())
    return Note(row.line, ": the number of fields is " + std::to_string(row.fields.size()) +
                              ", that of columns " + std::to_string(columns_.size()) + ": give it as many");
  Provider provider{};
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (const std::string problem = columns_[i]->Take(provider, row.fields[i]); !problem.empty())
      Note(row.line, i, problem);
  if (file_.faults.empty()) file_.providers.push_back(provider);
}

ProviderFile Reader::Finish(std::size_t misquoted_line) {
  if (misquoted_line != 0)
    Note(misquoted_line,
         ": a quote is not closed, or stands in a field that does not begin with one: put the field between "
         "quotes and double those within. Nothing was read from there on");
  else if (columns_.empty())
    Note(1, ": the file is empty: begin it with a line that names the columns");
  if (!file_.faults.empty()) file_.providers.clear();
  return std::move(file_);
}

/// All that tells providers apart, but for their identity.
std::vector<std::string> Texts(const Provider& provider) {
  std::vector<std::string> texts;
  for (const ProviderField& field : ProviderFields()) texts.push_back(field.text(provider));
  return texts;
}

class Adding {
 public:
  ProvidersAdded Run(std::vector<Provider>& providers);

 private:
  bool ReadKnown();
  bool Add(Provider& provider);
  bool Succeeded(const std::string& what, alertstore::Status status);

  std::set<std::vector<std::string>> known_;
  ProvidersAdded result_;
};

bool Adding::Succeeded(const std::string& what, alertstore::Status status) {
  if (status != alertstore::kOk) result_.problem = FailureText(what, status);
  return status == alertstore::kOk;
}

bool Adding::ReadKnown() {
  std::vector<Provider> stored;
  if (!Succeeded("read the paging providers", ListProviders(stored))) return false;
  for (const Provider& provider : stored) known_.insert(Texts(provider));
  return true;
}

bool Adding::Add(Provider& provider) {
  if (!known_.insert(Texts(provider)).second) {
    ++result_.known;
    return true;
  }
  const std::string what = "add the paging provider \"" + std::string(provider.company.View()) + "\"";
  if (!Succeeded(what, AddProvider(provider))) return false;
  ++result_.added;
  return true;
}

ProvidersAdded Adding::Run(std::vector<Provider>& providers) {
  if (!ReadKnown() || !std::ranges::all_of(providers, [this](Provider& each) { return Add(each); }))
    result_.problem += "; " + std::to_string(result_.added) + " of " + std::to_string(providers.size()) +
                       " were added: import the file again to add the rest";
  return result_;
}

}  // namespace

ProviderFile ReadProviderFile(const std::string& path) {
  const std::string text = ReadTextFile(path, kMostMegabytes);
  Reader reader;
  return reader.Finish(ReadCsv(text, [&](const CsvRow& row) { reader.Take(row); }));
}

ProvidersAdded AddMissingProviders(std::vector<Provider> providers) { return Adding().Run(providers); }

}  // namespace site
