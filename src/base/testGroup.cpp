#include <base/testGroup.h>

#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>

#include <base/exInternalError.h>
#include <base/list.h>
#include <base/trace.h>
#include <base/traceManager.h>

namespace Qn {

namespace {

// The registered groups in registration order, made by the first group.
List<TestGroup*>& registry() {
    static List<TestGroup*> groups;
    return groups;
}

bool isRegistered(const TestGroup* group) {
    for (const TestGroup* registered : registry())
        if (registered == group) return true;
    return false;
}

}  // namespace

TraceLevel& TestGroup::HarnessTraceLevel = Trace::registerLevel("Test", __FILE__);

bool TestGroup::_isPixified = false;

TestGroup::TestGroup(const char* name) { setName(name); }

TestGroup::~TestGroup() { registry().remove(this); }

void TestGroup::prepareCycle(int, const char* const*) {}

void TestGroup::terminate() {}

void TestGroup::printResults(std::ostream&) {}

void TestGroup::setName(const char* name) {
    const TestGroup* other = getInstance(name);
    if (other != nullptr && other != this) {
        char reason[ExBase::ReasonSize];
        std::snprintf(reason, sizeof reason, "Duplicate test group : \"%.*s\".",
                      ExBase::ArgPrecision, name);
        throw ExInternalError(__FILE__, __LINE__, reason);
    }
    ArrayPtr<char> copy;
    if (name != nullptr) {
        const size_t length = std::strlen(name);
        copy.reset(new char[length + 1]);
        std::memcpy(copy.get(), name, length + 1);
    }
    if (!isRegistered(this)) registry().push_back(this);
    _name = std::move(copy);
}

TestGroup* TestGroup::getInstance(const char* name) {
    if (name == nullptr) return nullptr;
    for (TestGroup* group : registry())
        if (group->_name && std::strcmp(group->_name.get(), name) == 0) return group;
    return nullptr;
}

void TestGroup::printInstances() {
    TraceManager& manager = TraceManager::getInstance();
    manager.print("\nRegistered test groups:\n");
    for (const TestGroup* group : registry()) {
        const char* name = group->_name ? group->_name.get() : "<unnamed>";
        std::ostringstream entry;
        entry << "  ";
        if (group->_description.empty()) {
            entry << name;
        } else {
            entry << std::left << std::setw(24) << name << ' ' << group->_description;
        }
        if (!group->_usage.empty()) entry << "\n      " << group->_usage;
        manager.print(entry.str().c_str());
    }
    manager.print("");
}

void TestGroup::caseHeader(const char* text) {
    if (Trace::isEnabled(HarnessTraceLevel))
        writeFramed(std::string("***** ") + (text ? text : "") + " *****", '*');
}

void TestGroup::log(const char* text) {
    if (Trace::isEnabled(HarnessTraceLevel))
        writeFramed(std::string("[ ") + (text ? text : "") + " ] ", '-');
}

bool TestGroup::isPixified() { return _isPixified; }

void TestGroup::writeFramed(const std::string& middle, char rule) {
    const std::string line(middle.size(), rule);
    TraceManager& manager = TraceManager::getInstance();
    manager.print(line.c_str());
    manager.print(middle.c_str());
    manager.print(line.c_str());
}

}  // namespace Qn
