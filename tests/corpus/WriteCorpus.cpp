// Writes the labelled corpus as files: NAME.trace and NAME.labels for every session, in the
// directory given, so that `tactora --score DIRECTORY` can read it and a person can look at it;
// and the sessions of the gestures beyond the taps and clicks likewise in its subdirectory
// more-gestures, for `tactora --score DIRECTORY/more-gestures --gestures all`.
//
//   tactora_corpus DIRECTORY [SEED [SESSIONS [MINUTES]]]
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "core/score/LabelFile.h"
#include "core/trace/TraceFormat.h"
#include "corpus/Corpus.h"

namespace {

bool writeFile(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    return static_cast<bool>(file);
}

std::string traceText(const tactora::corpus::Session& session) {
    std::string text = tactora::trace::header() + '\n';
    text += "# A simulated hand; every touch is labelled in " + session.name + ".labels.\n";
    for (const tactora::TraceLine& line : session.lines) {
        text += tactora::trace::formatLine(line);
        text += '\n';
    }
    return text;
}

bool writeSessions(const std::filesystem::path& directory,
                   const std::vector<tactora::corpus::Session>& sessions) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    for (const tactora::corpus::Session& session : sessions) {
        if (!writeFile(directory / (session.name + ".trace"), traceText(session)) ||
            !writeFile(directory / (session.name + ".labels"),
                       tactora::labels::write(session.labels))) {
            std::cerr << "Can't write the corpus in " << directory << '\n';
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 5) {
        std::cerr << "Usage: tactora_corpus DIRECTORY [SEED [SESSIONS [MINUTES]]]\n";
        return 2;
    }
    tactora::corpus::CorpusShape shape;
    if (argc > 2) {
        shape.seed = std::strtoull(argv[2], nullptr, 10);
    }
    if (argc > 3) {
        shape.sessions = std::atoi(argv[3]);
    }
    if (argc > 4) {
        shape.minutesPerSession = std::atof(argv[4]);
    }
    const std::filesystem::path directory = argv[1];
    const bool written =
        writeSessions(directory, tactora::corpus::generate(shape)) &&
        writeSessions(directory / "more-gestures", tactora::corpus::generateMore(shape));
    return written ? 0 : 1;
}
