#include "services/field_reader.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "model/failure.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kSpace = " \t\r\n";
constexpr std::string_view kFieldEnds = ",\r\n";

}  // namespace

std::size_t FieldReader::SkipBlanks(std::size_t at) const {
  return std::min(bytes_.find_first_not_of(kBlanks, at), bytes_.size());
}

std::size_t FieldReader::SkipSpace(std::size_t at) const {
  return std::min(bytes_.find_first_not_of(kSpace, at), bytes_.size());
}

bool FieldReader::AtEnd() const { return SkipSpace(at_) == bytes_.size(); }

std::string FieldReader::Text() {
  at_ = SkipSpace(at_);
  return TakeField();
}

std::string FieldReader::LastText() {
  at_ = SkipBlanks(at_);
  const bool left_out = at_ < bytes_.size() && kLineEnds.find(bytes_[at_]) != kLineEnds.npos;
  if (!left_out || !NextLineHasComma()) return Text();
  PassFieldEnd();
  return {};
}

std::string FieldReader::Field() {
  at_ = SkipBlanks(at_);
  return TakeField();
}

float FieldReader::Single() {
  const double value = Number();
  if (std::abs(value) > FLT_MAX) throw RuntimeFailure(failure::kOverflow);
  return static_cast<float>(value);
}

Int16 FieldReader::Integer() { return RoundToInt16(Number()); }

std::string FieldReader::Line() {
  if (at_ >= bytes_.size()) throw RuntimeFailure(failure::kInputPastEnd);
  const std::size_t end = std::min(bytes_.find_first_of(kLineEnds, at_), bytes_.size());
  std::string line = bytes_.substr(at_, end - at_);
  at_ = end;
  PassFieldEnd();
  return line;
}

void FieldReader::PassFieldEnd() {
  if (bytes_.compare(at_, kLineEnds.size(), kLineEnds) == 0) {
    at_ += kLineEnds.size();
  } else if (at_ < bytes_.size()) {
    ++at_;
  }
}

bool FieldReader::NextLineHasComma() const {
  const std::size_t end = bytes_.find_first_of(kFieldEnds, SkipSpace(at_));
  return end < bytes_.size() && bytes_[end] == ',';
}

std::string FieldReader::TakeField() {
  if (at_ >= bytes_.size()) throw RuntimeFailure(failure::kInputPastEnd);
  if (bytes_[at_] == '"') return TakeQuoted();

  const std::size_t end = std::min(bytes_.find_first_of(kFieldEnds, at_), bytes_.size());
  std::string field = bytes_.substr(at_, end - at_);
  field.erase(field.find_last_not_of(kBlanks) + 1);
  at_ = end;
  PassFieldEnd();
  return field;
}

std::string FieldReader::TakeQuoted() {
  const std::size_t close = std::min(bytes_.find('"', at_ + 1), bytes_.size());
  std::string field = bytes_.substr(at_ + 1, close - at_ - 1);
  at_ = std::min(bytes_.find_first_of(kFieldEnds, close), bytes_.size());
  PassFieldEnd();
  return field;
}

double FieldReader::Number() {
  at_ = SkipSpace(at_);
  return ReadNumberField(TakeField());
}

}  // namespace zeb
