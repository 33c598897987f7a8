// The companion's arguments. What `--help`, the manual page and the shells' completion say is all made from here.
#pragma once

#include "orrery/Check.h"
#include "orrery/Documents.h"
#include "orrery/ParseFiles.h"
#include "orrery/ShowTemplate.h"
#include "orrery/Stream.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

namespace orrery::tool {

class Arguments {
  public:
    Arguments();

    CLI::App& app() { return app_; }
    // Tells what is wrong with the words, or the help that they ask for; answers the exit status.
    int Exit(const CLI::ParseError& error);
    // Does what was asked for; answers the exit status.
    int Run();

  private:
    void AddParse();
    void AddPack();
    void AddCheck();
    void AddEvents();
    void AddDiff();
    void AddTemplate();
    void AddCommands();
    void AddDescribe();
    void AddDocuments();
    void AddHidden();

    int RunParse();
    int RunPack();
    int RunCheck();
    int RunEvents();
    // What 'parse', 'check' and 'events' share: how much is printed, and in which form.
    struct Shape {
        const char* row;
        const char* pretty = "over several lines";
        const char* fields = "members of the records only: nEventID,stuObject.nObjectID";
        const char* filters = "name=AccessControl, nSpeed>60, stuObject.szObjectType~car";
        const char* commands = "'parse', 'events'";
    };
    void AddShape(CLI::App& command, std::vector<std::string>& fields, const Shape& shape);
    Format FormatOf(Format usual) const;
    std::vector<Filter> FiltersGiven() const;

    CLI::App app_;
    std::function<int()> run_;

    std::string name_, file_, startFile_;
    std::vector<std::string> files_;
    FilesOptions parse_;
    PackOptions pack_;
    CheckOptions check_;
    TemplateOptions template_;
    StreamOptions stream_;
    std::vector<std::string> filters_;
    std::string format_, colour_ = "auto";
    std::uint32_t request_ = 1;
    unsigned jobs_ = 1;
    bool warns_, isStrict_ = false, isPretty_ = false, isJson_ = false, isTable_ = false, isRequest_ = false;
    bool listsEvents_ = false, listsRules_ = false, listsTemplates_ = false;
};

// The manual page, for man(1).
std::string ManualPage(CLI::App& app);
// A script that completes the program's words in bash, zsh or fish; empty for another shell.
std::string CompletionScript(std::string_view shell);
// What may stand in the place of the last of these words, a line each: the word, and behind a tab what it is.
std::string Completions(CLI::App& app, const std::vector<std::string>& words);

} // namespace orrery::tool
