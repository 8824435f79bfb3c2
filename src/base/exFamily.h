// How a module forms its exception family in a few lines.
//
// A family is a class deriving from Qn::ExBase (or from another family) whose
// nested classes are the concrete exceptions. Each concrete exception derives
// from a standard category (std::runtime_error, std::logic_error, ...; built with
// an empty message) and from its family; what() returns the reason, clone() a
// heap copy of the most-derived class. Example:
//
//   class QN_BASE_API FooEx : public ExBase {
//   public:
//       class ExMissing;
//       class ExBadName;
//   protected:
//       FooEx(const char* file, int line) : ExBase(file, line) {}
//   };
//   QN_EX_FIXED(QN_BASE_API, FooEx, ExMissing, std::runtime_error, "Missing foo.");
//   QN_EX_FORMAT(QN_BASE_API, FooEx, ExBadName, std::logic_error, "Bad foo name: '%.*s'.");
//
// The first argument is the export macro of the library that owns the family
// (QN_BASE_API in libQNbase; empty for a family private to one program).
//
//   throw FooEx::ExBadName(__FILE__, __LINE__, name);
#pragma once

#include <stdexcept>
#include <utility>

#include <base/exBase.h>

namespace Qn {

// The common part of every concrete exception: Std first, then Family, as the
// class tree prescribes. Constructor arguments after the standard part's empty
// message go to the family.
template <class Self, class Std, class Family>
class ExLeaf : public Std, public Family {
  public:
    const char* what() const noexcept override { return this->getReason(); }
    ExBase* clone() const override { return new Self(static_cast<const Self&>(*this)); }

  protected:
    template <class... Args>
    explicit ExLeaf(Args&&... args) : Std(""), Family(std::forward<Args>(args)...) {}
};

}  // namespace Qn

// A concrete exception of Family with a fixed reason text; built from (file, line).
#define QN_EX_FIXED(Api, Family, Name, Std, Text)                                        \
    class Api Family::Name : public ::Qn::ExLeaf<Family::Name, Std, Family> {            \
      public:                                                                            \
        Name(const char* file, int line) : ExLeaf(file, line) { this->setReason(Text); } \
    }

// A concrete exception of Family whose reason is Format with one text argument
// cut at 256 characters ("%.*s"); built from (file, line, text).
#define QN_EX_FORMAT(Api, Family, Name, Std, Format)                             \
    class Api Family::Name : public ::Qn::ExLeaf<Family::Name, Std, Family> {    \
      public:                                                                    \
        Name(const char* file, int line, const char* arg) : ExLeaf(file, line) { \
            this->setReasonCut(Format, arg);                                     \
        }                                                                        \
    }

// The same with two text arguments.
#define QN_EX_FORMAT2(Api, Family, Name, Std, Format)                         \
    class Api Family::Name : public ::Qn::ExLeaf<Family::Name, Std, Family> { \
      public:                                                                 \
        Name(const char* file, int line, const char* arg1, const char* arg2)  \
            : ExLeaf(file, line) {                                            \
            this->setReasonCut(Format, arg1, arg2);                           \
        }                                                                     \
    }

// Raises an exception with the current source file and line.
#define QN_THROW(ExClass, ...) throw ExClass(__FILE__, __LINE__ __VA_OPT__(, ) __VA_ARGS__)
