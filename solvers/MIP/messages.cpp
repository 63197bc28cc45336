#include "solvers/MIP/messages.h"

#include <sstream>
#include <stdexcept>

namespace vantore::mip {

namespace {

/// Items one after another, a blank behind each; a list has its count in front.
class Writer {
  public:
    template <class Item>
    Writer& item(const Item& item) {
        text_ << item << ' ';
        return *this;
    }

    template <class Item>
    Writer& list(const std::vector<Item>& items) {
        item(items.size());
        for (const Item& each : items) item(each);
        return *this;
    }

    std::string text() const { return text_.str(); }

  private:
    std::ostringstream text_;
};

class Reader {
  public:
    explicit Reader(const std::string& text) : text_(text) {}

    template <class Item>
    Reader& item(Item& item) {
        if (!(text_ >> item)) throw std::runtime_error("a message without its end");
        return *this;
    }

    template <class Item>
    Reader& list(std::vector<Item>& items) {
        std::size_t count = 0;
        item(count);
        for (std::size_t i = 0; i < count; ++i) item(items.emplace_back());
        return *this;
    }

  private:
    std::istringstream text_;
};

void write(Writer& writer, const FoundValues& found) {
    writer.list(found.values);
}

void write(Writer& writer, const SearchProgress& progress) {
    std::vector<Rational> bound;
    if (progress.bound) bound.push_back(*progress.bound);
    writer.item(progress.nodes).item(progress.iterations).list(bound);
}

void write(Writer& writer, const SearchEnd& end) {
    writer.item(static_cast<int>(end));
}

void write(Writer& writer, const ProofProgress& progress) {
    writer.item(progress.nodes);
}

void write(Writer& writer, const Relaxation& relaxation) {
    writer.item(static_cast<int>(relaxation.end)).item(relaxation.objective);
    writer.list(relaxation.values).list(relaxation.reducedCosts).list(relaxation.dualValues);
    writer.list(relaxation.conflict).list(relaxation.unlimited);
}

void read(Reader& reader, FoundValues& found) {
    reader.list(found.values);
}

void read(Reader& reader, SearchProgress& progress) {
    std::vector<Rational> bound;
    reader.item(progress.nodes).item(progress.iterations).list(bound);
    if (!bound.empty()) progress.bound = bound.front();
}

void read(Reader& reader, SearchEnd& end) {
    int number = 0;
    reader.item(number);
    end = static_cast<SearchEnd>(number);
}

void read(Reader& reader, ProofProgress& progress) {
    reader.item(progress.nodes);
}

void read(Reader& reader, Relaxation& relaxation) {
    int end = 0;
    reader.item(end).item(relaxation.objective);
    relaxation.end = static_cast<LinearEnd>(end);
    reader.list(relaxation.values).list(relaxation.reducedCosts).list(relaxation.dualValues);
    reader.list(relaxation.conflict).list(relaxation.unlimited);
}

template <class Kind>
Message messageOf(Reader& reader) {
    Kind kind{};
    read(reader, kind);
    return kind;
}

} // namespace

std::string encoded(const Message& message) {
    Writer writer;
    writer.item(message.index());
    std::visit([&](const auto& kind) { write(writer, kind); }, message);
    return writer.text();
}

Message decoded(const std::string& text) {
    Reader reader(text);
    std::size_t kind = 0;
    switch (reader.item(kind), kind) {
    case 0: return messageOf<FoundValues>(reader);
    case 1: return messageOf<SearchProgress>(reader);
    case 2: return messageOf<SearchEnd>(reader);
    case 3: return messageOf<ProofProgress>(reader);
    case 4: return messageOf<Relaxation>(reader);
    default: throw std::runtime_error("a message of an unknown kind");
    }
}

} // namespace vantore::mip
