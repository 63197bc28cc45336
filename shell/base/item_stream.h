#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantore {

/// Reads the comma-separated items of a problem file in order, without regard to line ends.
///
/// An item is a string in double quotes or the text up to the next comma or line end without the blanks
/// around it. A line end is CR LF, LF or CR; inside the quotes it reads as a blank. An empty place between
/// two commas is an empty item.
class ItemReader {
  public:
    /// `text` is the whole file, as readTextFile gives it.
    explicit ItemReader(std::string text);

    /// The next item as a string. InputPastEnd when the file has no further item.
    std::string readString();

    /// The next item as a number, by `val`. InputPastEnd when the file has no further item.
    double readNumber();

    /// A count of rows from 0 to `most`; SubscriptOutOfRange for anything else, so that nothing is ever
    /// allocated for a count that can't be. InputPastEnd when the file has no further item.
    int readCount(int most);

    /// True when nothing but blanks and line ends is left.
    bool atEnd() const;

  private:
    std::string readQuoted();
    void skipDelimiter();

    std::string text_;
    std::size_t at_ = 0;
};

/// Writes the items of a problem file, comma-separated, line by line.
class ItemWriter {
  public:
    /// Writes a string in double quotes; a double quote inside becomes an apostrophe, a line end a blank.
    ItemWriter& string(std::string_view text);

    /// Writes a row's label: without blanks at its ends, an empty one as one blank.
    ItemWriter& label(std::string_view text);

    /// Writes a number as its default text.
    ItemWriter& number(double value);

    /// Writes a text as it is, without quotes.
    ItemWriter& plain(std::string_view text);

    /// Ends the line; the next item starts a new one.
    ItemWriter& endLine();

    /// All that was written, lines ended by CR LF.
    const std::string& text() const { return text_; }

  private:
    std::string text_;
    bool lineStarted_ = false;
};

} // namespace vantore
