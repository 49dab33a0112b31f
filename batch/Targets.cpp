#include "batch/Targets.h"

#include "batch/ExitCode.h"
#include "export/StandardOutput.h"
#include "export/WholeFile.h"

#include <QFile>
#include <iostream>

std::unique_ptr<ByteTarget> Targets::open(const std::string& fileName) {
    if (fileName == standardOutput) {
        return std::make_unique<StandardOutput>();
    }
    return std::make_unique<WholeFile>(QFile::decodeName(fileName.c_str()));
}

int Targets::close(ByteTarget& target, const std::string& fileName) {
    if (target.commit()) {
        return 0;
    }
    std::cerr << (fileName == standardOutput ? "Standard output" : fileName)
              << " cannot be written (" << target.errorString().toLocal8Bit().constData() << ")\n";
    return ExitCode::incomplete;
}

int Targets::write(const std::string& text, const std::string& fileName) {
    const std::unique_ptr<ByteTarget> target = open(fileName);
    target->write(text.data(), text.size());
    return close(*target, fileName);
}
