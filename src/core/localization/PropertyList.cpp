#include "core/localization/PropertyList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "core/localization/DecodedText.h"

namespace tactora {

const PropertyList* PropertyList::find(std::string_view key) const {
    if (kind != Kind::dictionary) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(
        entries, [key](const PropertyListEntry& entry) { return entry.key == key; });
    return found != entries.end() ? &found->value : nullptr;
}

std::optional<std::string> PropertyList::string(std::string_view key) const {
    const PropertyList* value = find(key);
    if (value == nullptr || value->kind != Kind::string) {
        return std::nullopt;
    }
    return value->text;
}

namespace {

constexpr std::size_t maxDepth = 64;

struct ParseFailure {
    std::string message;
};

bool isSpace(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '-' || character == '_' ||
           character == ':' || character == '.';
}

// A start or end tag: "<name ...>", "<name/>" or "</name>".
struct Tag {
    std::string name;
    bool closing = false;
    bool empty = false;
};

class PropertyListParser {
  public:
    explicit PropertyListParser(std::string_view text) : text_(text) {}

    PropertyListDocument parse() {
        PropertyListDocument document;
        const std::optional<ParseFailure> failure = run(document);
        if (failure) {
            document.root.reset();
            document.error = PropertyListDocument::Error{lineAt(cursor_), failure->message};
        }
        return document;
    }

  private:
    std::optional<ParseFailure> run(PropertyListDocument& document) {
        skipMisc();
        Tag tag;
        if (auto failure = readTag(tag)) {
            return failure;
        }
        if (tag.name != "plist" || tag.closing) {
            return ParseFailure{"the document is not a property list"};
        }
        if (!tag.empty) {
            PropertyList root;
            if (auto failure = readValue(root, 0)) {
                return failure;
            }
            if (auto failure = expectEnd("plist")) {
                return failure;
            }
            document.root = std::move(root);
        }
        skipMisc();
        if (cursor_ < text_.size()) {
            return ParseFailure{"text after the property list"};
        }
        return std::nullopt;
    }

    std::optional<ParseFailure> readValue(PropertyList& value, std::size_t depth) {
        if (depth >= maxDepth) {
            return ParseFailure{"values nested too deeply"};
        }
        skipMisc();
        Tag tag;
        if (auto failure = readTag(tag)) {
            return failure;
        }
        if (tag.closing) {
            return ParseFailure{"unexpected </" + tag.name + ">"};
        }
        if (tag.name == "dict") {
            value.kind = PropertyList::Kind::dictionary;
            return tag.empty ? std::nullopt : readDictionary(value, depth);
        }
        if (tag.name == "array") {
            value.kind = PropertyList::Kind::array;
            return tag.empty ? std::nullopt : readArray(value, depth);
        }
        value.kind = tag.name == "string" ? PropertyList::Kind::string : PropertyList::Kind::other;
        if (tag.empty) {
            value.text = value.kind == PropertyList::Kind::string ? std::string() : tag.name;
            return std::nullopt;
        }
        std::string content;
        if (auto failure = readText(content, tag.name)) {
            return failure;
        }
        value.text = value.kind == PropertyList::Kind::string ? std::move(content) : tag.name;
        return std::nullopt;
    }

    std::optional<ParseFailure> readDictionary(PropertyList& dictionary, std::size_t depth) {
        while (true) {
            skipMisc();
            Tag tag;
            if (auto failure = readTag(tag)) {
                return failure;
            }
            if (tag.closing && tag.name == "dict") {
                return std::nullopt;
            }
            if (tag.closing || tag.name != "key") {
                return ParseFailure{"expected <key> in a dictionary, found <" + tag.name + ">"};
            }
            std::string key;
            if (!tag.empty) {
                if (auto failure = readText(key, "key")) {
                    return failure;
                }
            }
            PropertyList value;
            if (auto failure = readValue(value, depth + 1)) {
                return failure;
            }
            dictionary.entries.push_back(PropertyListEntry{std::move(key), std::move(value)});
        }
    }

    std::optional<ParseFailure> readArray(PropertyList& array, std::size_t depth) {
        while (true) {
            skipMisc();
            if (text_.substr(cursor_).starts_with("</")) {
                return expectEnd("array");
            }
            PropertyList item;
            if (auto failure = readValue(item, depth + 1)) {
                return failure;
            }
            array.items.push_back(std::move(item));
        }
    }

    // Character data up to "</name>", which it consumes.
    std::optional<ParseFailure> readText(std::string& content, const std::string& name) {
        while (cursor_ < text_.size()) {
            const char character = text_[cursor_];
            if (text_.substr(cursor_).starts_with("<![CDATA[")) {
                const std::size_t end = text_.find("]]>", cursor_ + 9);
                if (end == std::string_view::npos) {
                    return ParseFailure{"unterminated CDATA section"};
                }
                content.append(text_.substr(cursor_ + 9, end - cursor_ - 9));
                cursor_ = end + 3;
            } else if (text_.substr(cursor_).starts_with("<!--")) {
                if (auto failure = skipComment()) {
                    return failure;
                }
            } else if (character == '<') {
                return expectEnd(name);
            } else if (character == '&') {
                if (auto failure = readEntity(content)) {
                    return failure;
                }
            } else {
                content.push_back(character);
                ++cursor_;
            }
        }
        return ParseFailure{"unterminated <" + name + ">"};
    }

    std::optional<ParseFailure> readEntity(std::string& content) {
        const std::size_t end = text_.find(';', cursor_);
        if (end == std::string_view::npos || end - cursor_ > 12) {
            return ParseFailure{"unterminated entity"};
        }
        const std::string_view entity = text_.substr(cursor_ + 1, end - cursor_ - 1);
        cursor_ = end + 1;
        static constexpr std::array<std::pair<std::string_view, char>, 5> named = {
            {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}}};
        for (const auto& [name, character] : named) {
            if (entity == name) {
                content.push_back(character);
                return std::nullopt;
            }
        }
        if (entity.size() > 1 && entity.front() == '#') {
            const bool hex = entity[1] == 'x';
            const std::string_view digits = entity.substr(hex ? 2 : 1);
            std::uint32_t codePoint = 0;
            const auto result = std::from_chars(digits.data(), digits.data() + digits.size(),
                                                codePoint, hex ? 16 : 10);
            if (!digits.empty() && result.ec == std::errc() &&
                result.ptr == digits.data() + digits.size() && codePoint != 0 &&
                codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF)) {
                appendUtf8(content, codePoint);
                return std::nullopt;
            }
        }
        return ParseFailure{"unknown entity &" + std::string(entity) + ";"};
    }

    std::optional<ParseFailure> expectEnd(const std::string& name) {
        skipMisc();
        Tag tag;
        if (auto failure = readTag(tag)) {
            return failure;
        }
        if (!tag.closing || tag.name != name) {
            return ParseFailure{"expected </" + name + ">"};
        }
        return std::nullopt;
    }

    std::optional<ParseFailure> readTag(Tag& tag) {
        if (cursor_ >= text_.size() || text_[cursor_] != '<') {
            return ParseFailure{cursor_ >= text_.size() ? "unexpected end of the document"
                                                        : "expected a tag"};
        }
        ++cursor_;
        tag.closing = cursor_ < text_.size() && text_[cursor_] == '/';
        cursor_ += tag.closing ? 1 : 0;
        const std::size_t nameStart = cursor_;
        while (cursor_ < text_.size() && isNameCharacter(text_[cursor_])) {
            ++cursor_;
        }
        tag.name = std::string(text_.substr(nameStart, cursor_ - nameStart));
        if (tag.name.empty()) {
            return ParseFailure{"a tag without a name"};
        }
        // Attributes are skipped; quoted values may hold ">".
        char quote = 0;
        for (; cursor_ < text_.size(); ++cursor_) {
            const char character = text_[cursor_];
            if (quote != 0) {
                quote = character == quote ? '\0' : quote;
            } else if (character == '"' || character == '\'') {
                quote = character;
            } else if (character == '>') {
                tag.empty = cursor_ > nameStart && text_[cursor_ - 1] == '/';
                ++cursor_;
                return tag.closing && tag.empty ? std::optional(ParseFailure{"malformed tag"})
                                                : std::nullopt;
            }
        }
        return ParseFailure{"unterminated tag"};
    }

    // White space, comments, the XML declaration and the document type.
    void skipMisc() {
        while (cursor_ < text_.size()) {
            const std::string_view rest = text_.substr(cursor_);
            if (isSpace(rest.front())) {
                ++cursor_;
            } else if (rest.starts_with("<!--")) {
                if (skipComment()) {
                    return;
                }
            } else if (rest.starts_with("<?") || rest.starts_with("<!DOCTYPE")) {
                const std::size_t end = text_.find('>', cursor_);
                cursor_ = end == std::string_view::npos ? text_.size() : end + 1;
            } else {
                return;
            }
        }
    }

    std::optional<ParseFailure> skipComment() {
        const std::size_t end = text_.find("-->", cursor_ + 4);
        if (end == std::string_view::npos) {
            return ParseFailure{"unterminated comment"};
        }
        cursor_ = end + 3;
        return std::nullopt;
    }

    std::size_t lineAt(std::size_t offset) const {
        const std::string_view before = text_.substr(0, std::min(offset, text_.size()));
        return 1 + static_cast<std::size_t>(std::ranges::count(before, '\n'));
    }

    std::string_view text_;
    std::size_t cursor_ = 0;
};

}  // namespace

PropertyListDocument parsePropertyListXml(std::string_view bytes) {
    const DecodedText decoded = decodeText(bytes);
    PropertyListDocument document = PropertyListParser(decoded.utf8).parse();
    if (decoded.problem && !document.error) {
        document.root.reset();
        document.error = PropertyListDocument::Error{1, *decoded.problem};
    }
    return document;
}

}  // namespace tactora
