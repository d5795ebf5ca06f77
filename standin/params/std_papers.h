// The store of standard papers, with the host's dialogs over it.
#pragma once

#include "host/std_papers.h"
#include "standin/params/mem_param.h"

namespace standin {

class StdPapers : public ParamOf<IStdPapersParam> {
public:
    using ParamOf::ParamOf;
    bool AddPaper(QWidget* parent) override;
    bool ModifyPaper(const wchar_t* rowText, QWidget* parent) override;
};

} // namespace standin
