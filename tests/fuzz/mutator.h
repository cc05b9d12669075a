#pragma once

#include <random>
#include <string>
#include <vector>

/// Makes new sources out of given ones: lines and words swapped, repeated, dropped and mixed, bytes broken.
class Mutator {
public:
    /// \param corpus sources to start from, at least one
    /// \param seed the same seed makes the same sources
    Mutator(std::vector<std::string> corpus, unsigned seed);

    /// The next source.
    std::string next();

private:
    std::size_t below(std::size_t bound);
    std::string anyLine();
    void mutateLines(std::string& source);
    void mutateWords(std::string& source);
    void mutateBytes(std::string& source);
    void deepen(std::string& source);

    std::vector<std::string> corpus_;
    std::vector<std::string> words_;
    std::mt19937 random_;
};
