#include <base/exBase.h>

#include <cstdio>
#include <cstring>
#include <typeinfo>

#include <base/dbgTypeName.h>

namespace Qn {

namespace {

// Copies at most size - 1 characters and always terminates.
void copyCut(char* dest, const char* src, size_t size) {
    size_t n = std::strlen(src);
    if (n >= size) n = size - 1;
    std::memcpy(dest, src, n);
    dest[n] = '\0';
}

// Appends src to the text in dest (a buffer of size bytes), cutting it to fit.
void appendCut(char* dest, const char* src, size_t size) {
    size_t used = std::strlen(dest);
    if (used + 1 >= size) return;
    copyCut(dest + used, src, size - used);
}

}  // namespace

ExBase::ExBase(const char* fileName, int lineNo) : _lineNo(lineNo) {
    _detailedReason[0] = '\0';
    _reason[0] = '\0';
    _fileName[0] = '\0';
    if (fileName) setFileName(fileName);
}

ExBase::ExBase(const ExBase& other) : _lineNo(other._lineNo) {
    std::memcpy(_detailedReason, other._detailedReason, sizeof _detailedReason);
    std::memcpy(_reason, other._reason, sizeof _reason);
    std::memcpy(_fileName, other._fileName, sizeof _fileName);
}

ExBase& ExBase::operator=(const ExBase& other) {
    if (this != &other) {
        std::memcpy(_detailedReason, other._detailedReason, sizeof _detailedReason);
        std::memcpy(_reason, other._reason, sizeof _reason);
        std::memcpy(_fileName, other._fileName, sizeof _fileName);
        _lineNo = other._lineNo;
    }
    return *this;
}

ExBase::~ExBase() = default;

const char* ExBase::getReason() const { return _reason; }

const char* ExBase::getDetailedReason() const {
    if (_detailedReason[0] == '\0') {
        char typeName[512];
        DbgTypeName::demangle(typeid(*this), typeName, sizeof typeName);
        std::snprintf(_detailedReason, sizeof _detailedReason,
                      "[Exception Type = %s, File = %s, Line=%d]\n", typeName, _fileName, _lineNo);
        appendCut(_detailedReason, _reason, sizeof _detailedReason);
    }
    return _detailedReason;
}

void ExBase::setReason(const char* text) {
    if (text) appendCut(_reason, text, sizeof _reason);
}

void ExBase::setReasonCut(const char* format, const char* arg) {
    char message[ReasonSize];
    std::snprintf(message, sizeof message, format, ArgPrecision, arg ? arg : "");
    setReason(message);
}

void ExBase::setReasonCut(const char* format, const char* arg1, const char* arg2) {
    char message[ReasonSize];
    std::snprintf(message, sizeof message, format, ArgPrecision, arg1 ? arg1 : "", ArgPrecision,
                  arg2 ? arg2 : "");
    setReason(message);
}

void ExBase::setFileName(const char* fileName) { copyCut(_fileName, fileName, sizeof _fileName); }

}  // namespace Qn
