#include "macos/FoundationTextHandling.h"

#import <Foundation/Foundation.h>

#include <memory>

#include "core/text/Utf8.h"
#import "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSString* foundationString(std::string_view text) {
    return toNSString(utf8::repaired(text));
}

// The UTF-16 length of the first `count` composed character sequences of `text`.
NSUInteger leadingLength(NSString* text, std::size_t count) {
    __block std::size_t taken = 0;
    __block NSUInteger end = 0;
    if (count == 0) {
        return 0;
    }
    [text enumerateSubstringsInRange:NSMakeRange(0, text.length)
                             options:NSStringEnumerationByComposedCharacterSequences |
                                     NSStringEnumerationSubstringNotRequired
                          usingBlock:^(NSString* _Nullable, NSRange range, NSRange, BOOL* stop) {
                              end = NSMaxRange(range);
                              if (++taken == count) {
                                  *stop = YES;
                              }
                          }];
    return end;
}

// The bundle whose PluralCategory table is in `language`. The main bundle itself for the
// language it chose (always the case for the string table's language), so Foundation applies
// that localisation's rules exactly as it does to Localizable.stringsdict; for any other
// language, that localisation's folder opened as a bundle of its own.
NSBundle* localizationBundle(NSString* language) {
    NSBundle* main = NSBundle.mainBundle;
    if ([main.preferredLocalizations.firstObject isEqualToString:language]) {
        return main;
    }
    NSString* folder = [main pathForResource:language ofType:@"lproj"];
    return folder != nil ? [NSBundle bundleWithPath:folder] : nil;
}

}  // namespace

std::string FoundationTextHandling::upperCased(std::string_view text) const {
    // uppercaseString uses the default mapping, never the user's locale.
    return toStdString(foundationString(text).uppercaseString);
}

std::size_t FoundationTextHandling::characterCount(std::string_view text) const {
    NSString* string = foundationString(text);
    __block std::size_t count = 0;
    [string enumerateSubstringsInRange:NSMakeRange(0, string.length)
                               options:NSStringEnumerationByComposedCharacterSequences |
                                       NSStringEnumerationSubstringNotRequired
                            usingBlock:^(NSString* _Nullable, NSRange, NSRange, BOOL*) {
                                ++count;
                            }];
    return count;
}

std::string FoundationTextHandling::leadingCharacters(std::string_view text,
                                                      std::size_t count) const {
    NSString* string = foundationString(text);
    return toStdString([string substringToIndex:leadingLength(string, count)]);
}

std::string FoundationTextHandling::trimmed(std::string_view text) const {
    NSString* string = foundationString(text);
    return toStdString(
        [string stringByTrimmingCharactersInSet:NSCharacterSet.whitespaceAndNewlineCharacterSet]);
}

PluralCategory FoundationTextHandling::pluralCategory(std::string_view language,
                                                      std::int64_t value) const {
    NSBundle* bundle = localizationBundle(toNSString(language));
    NSString* format = [bundle localizedStringForKey:@"category" value:nil table:@"PluralCategory"];
    if (format == nil) {
        return PluralCategory::other;
    }
    // The format comes from the bundle's own PluralCategory.stringsdict, whose only variable
    // takes one long long ("lld").
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wformat-nonliteral"
    NSString* name = [NSString localizedStringWithFormat:format, static_cast<long long>(value)];
#pragma clang diagnostic pop
    return pluralCategoryNamed(toStdString(name)).value_or(PluralCategory::other);
}

}  // namespace tactora::macos

namespace tactora {

std::shared_ptr<const TextHandling> makePlatformTextHandling() {
    return std::make_shared<const macos::FoundationTextHandling>();
}

}  // namespace tactora
