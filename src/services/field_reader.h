#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "model/int16.h"

namespace zeb {

// Comma-separated input over the bytes of a file: a comma or a line end closes a field, and a field
// may stand in double quotes. Reading past the end raises "Input past end of file".
class FieldReader {
 public:
  explicit FieldReader(std::string bytes) : bytes_(std::move(bytes)) {}

  // Nothing but blanks and line ends is left.
  [[nodiscard]] bool AtEnd() const;
  // Another line is left, be it an empty one.
  [[nodiscard]] bool MoreLines() const { return at_ < bytes_.size(); }

  // The next field without the blanks around it; line ends before it are passed over.
  [[nodiscard]] std::string Text();
  // The same for the last text of a record, which may be left out: nothing before the line end is
  // an empty text, unless the next line, having no comma, can only be this text.
  [[nodiscard]] std::string LastText();
  // The next field of a line whose fields may be empty, the last one too: a line end is passed over
  // only when it closed the field before.
  [[nodiscard]] std::string Field();
  // A number; an empty field is 0. Fails with a type mismatch, and with overflow beyond the width.
  [[nodiscard]] float Single();
  [[nodiscard]] Int16 Integer();

  // The rest of the line as it stands.
  [[nodiscard]] std::string Line();

 private:
  [[nodiscard]] std::size_t SkipBlanks(std::size_t at) const;
  [[nodiscard]] std::size_t SkipSpace(std::size_t at) const;
  void PassFieldEnd();
  [[nodiscard]] bool NextLineHasComma() const;
  std::string TakeField();
  std::string TakeQuoted();
  double Number();

  std::string bytes_;
  std::size_t at_ = 0;
};

}  // namespace zeb
