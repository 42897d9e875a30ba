#pragma once

#include <string>

namespace CLI {
class App;
class Error;
}  // namespace CLI

namespace tavrel {

/// What is said of arguments that the parser refuses, in the user's language, and where more is to be had.
std::string usageErrorText(const CLI::App* app, const CLI::Error& error);

}  // namespace tavrel
