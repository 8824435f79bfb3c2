#include <base/inInitSources.h>

#include <cstdlib>
#include <map>

#include <base/inContextAliasMgrBase.h>
#include <base/inOptionParser.h>

namespace Qn {

namespace {

const char* keyItself(const std::string& key) { return key.c_str(); }

}  // namespace

InContextAliasRegistry& InInitOvr::registry() {
    static InContextAliasRegistry aliases;
    return aliases;
}

void InInitOvr::initialize() { registry().initialize(keyItself); }

InContextAliasRegistry& InInitDef::registry() {
    static InContextAliasRegistry aliases;
    return aliases;
}

void InInitDef::initialize() { registry().initialize(keyItself); }

InContextAliasRegistry& InInitEnv::registry() {
    static InContextAliasRegistry aliases;
    return aliases;
}

void InInitEnv::initialize() {
    registry().initialize([](const std::string& key) { return std::getenv(key.c_str()); });
}

InContextAliasRegistry& InInitArg::registry() {
    static InContextAliasRegistry aliases(true);
    return aliases;
}

void InInitArg::initialize() {
    std::string letters;
    for (const std::string& letter : registry().keys()) letters += letter + ":";
    std::map<std::string, std::string> found;
    InOptionParser parser(InContextAliasMgrBase::args(), letters.c_str());
    for (int option; (option = parser.next()) != -1;)
        if (option != '?' && parser.getArgument())
            found[std::string(1, static_cast<char>(option))] = parser.getArgument();
    registry().initialize([&found](const std::string& letter) -> const char* {
        const auto it = found.find(letter);
        return it == found.end() ? nullptr : it->second.c_str();
    });
}

}  // namespace Qn
