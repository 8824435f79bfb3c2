#include <base/osFile.h>

#include <base/exSysErrorNative.h>
#include <base/osFileEx.h>
#include <base/osFileHandle.h>
#include <base/osFileReader.h>
#include <base/osFileWriter.h>
#include <base/osFsUtils.h>

namespace Qn {

namespace {

void checkTarget(const OsFilePath& target) {
    if (target.isEmpty()) QN_THROW(OsFileEx::ExNullFilePath);
}

}  // namespace

OsFile::OsFile(const OsFilePath& path) : _path(path) {}

OsFile::~OsFile() = default;

void OsFile::checkName() const {
    if (_path.isEmpty()) QN_THROW(OsFileEx::ExNullFilePath);
}

void OsFile::checkExists() const {
    if (!exists()) QN_THROW(OsFileEx::ExInvalidPath, _path.getText());
}

ArrayPtrRet<char> OsFile::getOwner() const {
    checkExists();
    return performGetOwner(_path.getText());
}

uint32_t OsFile::getSize() const {
    checkExists();
    return performGetSize(_path.getText());
}

ObjPtrRet<OsDateTypes::DateRep> OsFile::getLastModificationTime() const {
    checkExists();
    return ObjPtrRet<OsDateTypes::DateRep>(
        new OsDateTypes::DateRep(performGetTime(_path.getText(), true)));
}

ObjPtrRet<OsDateTypes::DateRep> OsFile::getLastAccessTime() const {
    checkExists();
    return ObjPtrRet<OsDateTypes::DateRep>(
        new OsDateTypes::DateRep(performGetTime(_path.getText(), false)));
}

ObjPtrRet<OsFileTypes::UnbufferedInfo> OsFile::getUnbufferedInfo() const {
    checkExists();
    return ObjPtrRet<OsFileTypes::UnbufferedInfo>(
        new OsFileTypes::UnbufferedInfo(performGetUnbufferedInfo(_path.getText())));
}

int OsFile::probe(int mask) const {
    checkName();
    int access = 0;
    try {
        for (int bit : {OsFileTypes::AccessRead, OsFileTypes::AccessWrite}) {
            if ((mask & bit) && performProbe(_path.getText(), bit)) access |= bit;
        }
    } catch (const ExBase&) {
        return 0;
    }
    return access;
}

int OsFile::getAccess() const { return probe(OsFileTypes::AccessRead | OsFileTypes::AccessWrite); }

bool OsFile::isReadable() const { return probe(OsFileTypes::AccessRead) != 0; }

bool OsFile::isWritable() const { return probe(OsFileTypes::AccessWrite) != 0; }

bool OsFile::isFile() const { return getType() == OsFileTypes::ElementRegular; }

bool OsFile::isDirectory() const { return getType() == OsFileTypes::ElementDirectory; }

bool OsFile::isSymLink() const {
    checkExists();
    return performIsSymLink(_path.getText());
}

OsFileTypes::ElementType OsFile::getType() const {
    checkExists();
    return performGetType(_path.getText());
}

bool OsFile::exists() const {
    checkName();
    return OsFsUtils::fileExists(_path.getText());
}

void OsFile::create(const OsFileTypes::Permissions& permissions, bool exclusive) {
    checkName();
    OsFsUtils::createFile(_path.getText(), permissions, exclusive);
}

void OsFile::remove() {
    checkName();
    if (!OsFsUtils::performDeleteFile(_path.getText())) QN_THROW(ExSysErrorNative);
}

void OsFile::renameTo(const OsFilePath& target) {
    checkName();
    checkTarget(target);
    performRename(_path.getText(), target.getText());
    setPath(target);
}

void OsFile::copyTo(const OsFilePath& target) {
    checkName();
    checkTarget(target);
    OsFilePath destination = target;
    if (OsFsUtils::fileExists(target.getText())) {
        if (OsFsUtils::isDirectory(target.getText())) {
            destination += _path.getBaseName().getText();
        } else if (!OsFile(target).isWritable()) {
            QN_THROW(OsFileEx::ExPathNotWritable, target.getText());
        }
    }
    OsFileReader reader(_path);
    reader.open();
    OsFileWriter writer(destination, OsFileTypes::Permissions{}, false);
    writer.open();
    static constexpr size_t BlockSize = 65536;
    ArrayPtr<char> block(new char[BlockSize]);
    while (size_t count = reader.read(block.get(), BlockSize)) writer.write(block.get(), count);
    writer.close();
    reader.close();
}

int64_t OsFile::open(int mode) const {
    checkName();
    return OsFileHandle::openExisting(_path.getText(), mode);
}

void OsFile::close(int64_t handle) const { OsFileHandle::closeNative(handle); }

}  // namespace Qn
