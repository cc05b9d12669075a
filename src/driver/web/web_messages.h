#pragma once

#include "front_end/second_edition.h"

#include <filesystem>
#include <string>

namespace pozhil {

/// Tells that a web build begins and that the source is being analysed.
void printWebStart();

/// Tells that the analysis is done and the user interface is being made.
void printWebGeneration();

/// Tells that the user interface is made.
void printWebGenerated();

/// Tells that the application is being packed and compiled.
void printWebPacking();

/// Tells where the finished application is served, and that the browser opens it.
/// \param place what the server listens on
void printWebSuccess(const std::string& place, const std::string& address);

/// Tells that the address set for the server is none.
void printInvalidHost(const std::string& host);

/// Tells that the first build failed.
void printWebFailure(Edition edition);

/// Tells that a program that is asked for as one for the web has no application.
void printNoWebApplication(const std::string& path);

/// Tells that a later version of the application is served.
void printWebUpdated();

/// Tells that the template of the page is missing.
/// \param appDirectory the installation
void printMissingTemplate(const std::filesystem::path& appDirectory);

/// Tells that the video behind a page is missing.
void printMissingVideo(const std::string& path);

/// What pages tell of a build that failed for a reason that is told on the console alone.
constexpr const char* BUILD_FAILURE = "மாற்றத்தைத் தொகுக்க முடியவில்லை; காரணத்தை முனையத்தில் பார்க்கவும்.";

/// Tells that em++ failed.
void printCompilationFailure();

/// Tells why em++ failed: it isn't installed.
void printMissingCompiler();

/// Tells why em++ failed: an object of the installation is missing.
void printMissingObject(const std::string& path);

/// Tells why a directory of the build is of no use: it can't be made or written.
void printUnwritableDirectory(const std::string& path);

/// Tells why em++ failed: there is no space left.
void printFullDisk(const std::string& path);

} // namespace pozhil
