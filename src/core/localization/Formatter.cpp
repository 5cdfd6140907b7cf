#include "core/localization/Formatter.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

#include "core/localization/FormatConversion.h"

namespace tactora {

namespace {

// The user's locale is deliberately not consulted: it changes neither decimal integers without
// grouping (%d) nor strings (%@), the only conversions the texts use.
std::optional<std::string> render(ConversionType type, const FormatArgument& argument) {
    if (type == ConversionType::string) {
        if (const auto* text = std::get_if<std::string>(&argument)) {
            return *text;
        }
        return std::nullopt;
    }
    const auto* number = std::get_if<std::int64_t>(&argument);
    if (number == nullptr) {
        return std::nullopt;
    }
    if (type == ConversionType::unsignedInteger) {
        return std::to_string(static_cast<std::uint64_t>(*number));
    }
    return std::to_string(*number);
}

class TextFormatter {
  public:
    TextFormatter(std::string_view format, std::span<const FormatArgument> arguments)
        : format_(format), arguments_(arguments) {}

    std::string run() {
        std::size_t cursor = 0;
        while (cursor < format_.size()) {
            const std::size_t percent = format_.find('%', cursor);
            if (percent == std::string_view::npos) {
                break;
            }
            output_.append(format_.substr(cursor, percent - cursor));
            const FormatConversion conversion = readConversion(format_, percent);
            append(conversion);
            cursor = percent + conversion.length;
        }
        if (cursor < format_.size()) {
            output_.append(format_.substr(cursor));
        }
        return std::move(output_);
    }

  private:
    void append(const FormatConversion& conversion) {
        if (conversion.type == ConversionType::percent) {
            output_.push_back('%');
            return;
        }
        const std::optional<std::string> rendered = fill(conversion);
        output_.append(rendered ? *rendered : format_.substr(conversion.offset, conversion.length));
    }

    std::optional<std::string> fill(const FormatConversion& conversion) {
        if (!conversion.takesArgument()) {
            return std::nullopt;
        }
        const bool positional = conversion.position.has_value();
        if (!positionalStyle_) {
            positionalStyle_ = positional;
        }
        if (*positionalStyle_ != positional) {
            return std::nullopt;
        }
        const std::optional<std::size_t> index = argumentIndex(conversion);
        if (!index || *index >= arguments_.size()) {
            return std::nullopt;
        }
        return render(conversion.type, arguments_[*index]);
    }

    std::optional<std::size_t> argumentIndex(const FormatConversion& conversion) {
        if (!conversion.position) {
            return nextSequential_++;
        }
        if (*conversion.position == 0) {
            return std::nullopt;
        }
        return *conversion.position - 1;
    }

    std::string_view format_;
    std::span<const FormatArgument> arguments_;
    std::string output_;
    std::optional<bool> positionalStyle_;
    std::size_t nextSequential_ = 0;
};

}  // namespace

std::string formatText(std::string_view format, std::span<const FormatArgument> arguments) {
    return TextFormatter(format, arguments).run();
}

}  // namespace tactora
