#include "shell/base/item_stream.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

std::string withoutLineEnds(std::string_view text) {
    return replaced(replaced(replaced(text, "\r\n", " "), "\n", " "), "\r", " ");
}

} // namespace

ItemReader::ItemReader(std::string text) : text_(std::move(text)) {}

std::string ItemReader::readString() {
    at_ = std::min(text_.find_first_not_of(" \t", at_), text_.size());
    if (at_ >= text_.size()) throw RuntimeError(ErrorNumber::InputPastEnd);
    if (text_[at_] == '"') return readQuoted();
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    const std::string item = text_.substr(at_, end - at_);
    at_ = end;
    skipDelimiter();
    return item.substr(0, item.find_last_not_of(" \t") + 1);
}

std::string ItemReader::readQuoted() {
    const std::size_t start = at_ + 1;
    const std::size_t close = std::min(text_.find('"', start), text_.size());
    const std::string item = text_.substr(start, close - start);
    at_ = std::min(text_.find_first_of(",\r\n", close), text_.size());
    skipDelimiter();
    return withoutLineEnds(item);
}

void ItemReader::skipDelimiter() {
    if (at_ >= text_.size()) return;
    at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2 : 1;
}

double ItemReader::readNumber() {
    return val(readString());
}

int ItemReader::readCount(int most) {
    const std::string item = readString();
    double value = -1;
    try {
        value = std::nearbyint(numberFrom(item));
    } catch (const RuntimeError&) {
        // What is no number is no count either.
    }
    if (!(value >= 0 && value <= most)) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return static_cast<int>(value);
}

bool ItemReader::atEnd() const {
    return text_.find_first_not_of(" \t\r\n", at_) == std::string::npos;
}

ItemWriter& ItemWriter::string(std::string_view text) {
    return plain("\"" + replaced(withoutLineEnds(text), "\"", "'") + "\"");
}

ItemWriter& ItemWriter::label(std::string_view text) {
    const std::string bare = trimmed(text);
    return string(bare.empty() ? " " : bare);
}

ItemWriter& ItemWriter::number(double value) {
    return plain(defaultText(value));
}

ItemWriter& ItemWriter::plain(std::string_view text) {
    if (lineStarted_) text_ += ',';
    text_ += text;
    lineStarted_ = true;
    return *this;
}

ItemWriter& ItemWriter::endLine() {
    text_ += "\r\n";
    lineStarted_ = false;
    return *this;
}

} // namespace vantore
