#include "ControllerProject.h"

#include "tree/TreeImages.h"

#include <string>
#include <vector>

namespace gallery {
namespace {

struct TagSpec {
    const wchar_t* name;
    const wchar_t* type;
    const wchar_t* description;
};

class Builder {
public:
    explicit Builder(VU_CTreeListBox& list) : m_list(list) {}

    int Add(const std::wstring& text, int image, int selectedImage, unsigned long kind, int parent,
            bool inhibited = false) {
        unsigned long data = (kind << 24) | (++m_serial & 0x7FFFFF);
        if (inhibited)
            data |= kInhibited;
        int handle = -1;
        m_list.AddItem(CString(text.c_str()), image, selectedImage, data, parent, &handle, false);
        return handle;
    }
    int Folder(const std::wstring& text, int parent) {
        return Add(text, VU_TREEIMAGE_FOLDER_CLOSED, VU_TREEIMAGE_FOLDER_OPEN, kKindFolder, parent);
    }
    void Tag(const TagSpec& tag, int parent, const std::wstring& prefix = L"") {
        Add(prefix + tag.name + L"\t" + tag.type + L"\t" + tag.description, VU_TREEIMAGE_TAG,
            VU_TREEIMAGE_TAG, kKindTag, parent);
    }

private:
    VU_CTreeListBox& m_list;
    unsigned long m_serial = 0;
};

const TagSpec kControllerTags[] = {
    {L"Line_Run", L"BOOL", L"Line running (all stations)"},
    {L"Line_Stop", L"BOOL", L"Line stop request from HMI"},
    {L"Line_Reset", L"BOOL", L"Fault reset push button"},
    {L"Line_Speed_SP", L"REAL", L"Line speed set point [bottles/min]"},
    {L"Line_Speed_PV", L"REAL", L"Measured line speed [bottles/min]"},
    {L"EStop_OK", L"BOOL", L"Emergency stop circuit healthy"},
    {L"Air_Pressure_OK", L"BOOL", L"Compressed air above 5.5 bar"},
    {L"Shift_Counter", L"DINT", L"Bottles produced this shift"},
    {L"Batch_ID", L"STRING", L"Current batch identifier"},
    {L"Recipe_Active", L"UDT_Recipe", L"Recipe in production"},
    {L"HMI_Screen", L"INT", L"Screen requested by the operator panel"},
    {L"Alarm_Word", L"DINT", L"Packed alarm bits for the HMI"},
    {L"Heartbeat", L"BOOL", L"Toggles every second for the SCADA link"},
    {L"Clock_1s", L"BOOL", L"One-second pulse"},
    {L"Cycle_Time_ms", L"DINT", L"Last scan time of the continuous task"},
};

const wchar_t* const kStations[] = {L"Infeed",  L"Filler",     L"Capper",
                                    L"Labeler", L"CasePacker", L"Palletizer"};

std::wstring TwoDigits(int n) {
    return std::wstring{wchar_t(L'0' + n / 10 % 10), wchar_t(L'0' + n % 10)};
}

const TagSpec kStationTags[] = {
    {L"Motor_Run", L"BOOL", L"Drive run command"},
    {L"Motor_Fault", L"BOOL", L"Drive fault from the VFD"},
    {L"Motor_Speed", L"REAL", L"Speed reference [%]"},
    {L"Motor", L"UDT_Motor", L"Main drive"},
    {L"Jam_Detected", L"BOOL", L"Photo eye blocked longer than 2 s"},
    {L"Jam_Timer", L"TIMER", L"Jam detection delay"},
    {L"Count", L"COUNTER", L"Products through this station"},
    {L"State", L"DINT", L"Sequence step (0 idle, 10 run, 90 fault)"},
    {L"Valve_Reject", L"UDT_Valve", L"Reject cylinder"},
    {L"Temp_PV", L"REAL", L"Temperature [degC]"},
    {L"Temp_Alarm_High", L"BOOL", L"Temperature above the high limit"},
    {L"Manual_Mode", L"BOOL", L"Station in manual mode from the HMI"},
    {L"Station_Ready_For_Format_Change", L"BOOL", L"All interlocks met for a format change"},
    {L"Faults", L"DINT[32]", L"Fault history ring buffer"},
    {L"Setup_Values", L"REAL[10]", L"Format change parameters"},
};

const wchar_t* const kRoutines[] = {L"MainRoutine", L"Sequence", L"Motors",
                                    L"Faults",      L"Manual",   L"HMI_Interface"};

struct TypeSpec {
    const wchar_t* name;
    std::vector<TagSpec> members;
};

} // namespace

ProjectCounts FillControllerProject(VU_CTreeListBox& list) {
    ProjectCounts counts;
    Builder b(list);

    // The top level first: AddHeader finds its node by row + 1, which holds
    // only while every node added so far has a row.
    list.AddHeader(CString(L"Controller Line3_Packer"));
    const int controller =
        b.Add(L"Line3_Packer\tVX-L83E\tVX 8 series, revision 33.011", VU_TREEIMAGE_CONTROLLER,
              VU_TREEIMAGE_CONTROLLER, kKindController, -1);
    list.AddSeparator();
    list.AddHeader(CString(L"Tasks"));
    struct TaskSpec {
        const wchar_t* text;
        int stations;
        const wchar_t* program;
        const wchar_t* language;
        int handle;
    } tasks[] = {{L"MainTask\tContinuous\tWatchdog 500 ms", 6, nullptr, L"Ladder", -1},
                 {L"Periodic_10ms\tPeriodic\tPriority 5, every 10 ms", 0, L"SafetyMonitor",
                  L"Structured Text", -1},
                 {L"Event_Estop\tEvent\tTriggered by the safety input module", 0, L"EStop_Response",
                  L"Function Block", -1}};
    for (TaskSpec& task : tasks) {
        task.handle = b.Add(task.text, VU_TREEIMAGE_TASK, VU_TREEIMAGE_TASK, kKindTask, -1);
        ++counts.tasks;
    }
    const int unscheduled = b.Folder(L"Unscheduled Programs", -1);
    list.AddSeparator();
    list.AddHeader(CString(L"Data Types"));
    const int userDefined = b.Folder(L"User-Defined", -1);
    const int predefined = b.Folder(L"Predefined", -1);
    list.AddSeparator();
    list.AddHeader(CString(L"I/O Configuration"));
    const int backplane = b.Folder(L"VX Backplane, VX-A10", -1);

    // The controller's own folders and tags.
    const int controllerTags = b.Folder(L"Controller Tags", controller);
    for (const TagSpec& tag : kControllerTags) {
        b.Tag(tag, controllerTags);
        ++counts.controllerTags;
    }
    for (int i = 0; i < 16; ++i) {
        const std::wstring name = L"Local_2_I_Data_" + TwoDigits(i);
        b.Tag({name.c_str(), L"BOOL", L"Digital input, slot 2"}, controllerTags);
        ++counts.controllerTags;
    }
    b.Folder(L"Controller Fault Handler", controller);
    b.Folder(L"Power-Up Handler", controller);

    // Programs of the tasks, each with its tags and routines.
    for (const TaskSpec& task : tasks) {
        for (int s = 0; s < task.stations; ++s) {
            const std::wstring programName = kStations[s];
            const int program = b.Add(programName, VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
                                      kKindProgram, task.handle);
            ++counts.programs;
            const int tags = b.Folder(L"Program Tags", program);
            for (const TagSpec& tag : kStationTags) {
                b.Tag(tag, tags);
                ++counts.programTags;
            }
            for (const wchar_t* routine : kRoutines) {
                const bool inhibited = s == 1 && std::wstring(routine) == L"Manual";
                b.Add(std::wstring(routine) + L"\t" + task.language + L"\t" + programName + L" " +
                          routine,
                      VU_TREEIMAGE_ROUTINE, VU_TREEIMAGE_ROUTINE, kKindRoutine, program, inhibited);
                ++counts.routines;
                counts.inhibited += inhibited ? 1 : 0;
            }
        }
        if (task.program != nullptr) {
            const std::wstring programName = task.program;
            const int program = b.Add(programName, VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
                                      kKindProgram, task.handle);
            ++counts.programs;
            const int tags = b.Folder(L"Program Tags", program);
            for (int i = 0; i < 6; ++i) {
                b.Tag(kStationTags[i], tags);
                ++counts.programTags;
            }
            for (const wchar_t* routine : {L"MainRoutine", L"Checks"}) {
                b.Add(std::wstring(routine) + L"\t" + task.language + L"\t" + programName,
                      VU_TREEIMAGE_ROUTINE, VU_TREEIMAGE_ROUTINE, kKindRoutine, program);
                ++counts.routines;
            }
        }
    }
    b.Add(L"Commissioning\t\tNot scheduled in any task", VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
          kKindProgram, unscheduled, true);
    ++counts.programs;
    ++counts.inhibited;

    // Data types.
    const TypeSpec types[] = {
        {L"UDT_Motor",
         {{L"Run", L"BOOL", L"Run command"},
          {L"Running", L"BOOL", L"Run feedback"},
          {L"Fault", L"BOOL", L"Drive fault"},
          {L"Speed_SP", L"REAL", L"Speed set point [%]"},
          {L"Speed_PV", L"REAL", L"Actual speed [%]"},
          {L"Hours", L"DINT", L"Running hours"}}},
        {L"UDT_Valve",
         {{L"Open", L"BOOL", L"Open command"},
          {L"Opened", L"BOOL", L"Open limit switch"},
          {L"Closed", L"BOOL", L"Closed limit switch"},
          {L"Travel_Time", L"TIMER", L"Travel supervision"}}},
        {L"UDT_Recipe",
         {{L"Name", L"STRING", L"Recipe name"},
          {L"Fill_Volume_ml", L"REAL", L"Nominal fill volume"},
          {L"Cap_Torque_Ncm", L"REAL", L"Capping torque"},
          {L"Label_Length_mm", L"REAL", L"Label length"},
          {L"Bottles_Per_Case", L"INT", L"Case packing pattern"}}},
        {L"UDT_Alarm",
         {{L"Active", L"BOOL", L"Condition present"},
          {L"Acknowledged", L"BOOL", L"Operator acknowledged"},
          {L"Text_ID", L"DINT", L"Message number for the HMI"}}},
    };
    for (const TypeSpec& type : types) {
        const int t = b.Add(type.name, VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE,
                            kKindDataType, userDefined);
        ++counts.dataTypes;
        for (const TagSpec& member : type.members)
            b.Add(std::wstring(member.name) + L"\t" + member.type + L"\t" + member.description,
                  VU_TREEIMAGE_DOCUMENT, VU_TREEIMAGE_DOCUMENT, kKindMember, t);
    }
    for (const TagSpec& type :
         {TagSpec{L"BOOL", L"1 bit", L"Boolean"}, TagSpec{L"SINT", L"8 bit", L"Short integer"},
          TagSpec{L"INT", L"16 bit", L"Integer"}, TagSpec{L"DINT", L"32 bit", L"Double integer"},
          TagSpec{L"LINT", L"64 bit", L"Long integer"}, TagSpec{L"REAL", L"32 bit", L"IEEE float"},
          TagSpec{L"STRING", L"88 bytes", L"82 characters"},
          TagSpec{L"TIMER", L"12 bytes", L"PRE, ACC, EN, TT, DN"},
          TagSpec{L"COUNTER", L"12 bytes", L"PRE, ACC, CU, CD, DN"}}) {
        b.Add(std::wstring(type.name) + L"\t" + type.type + L"\t" + type.description,
              VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE, kKindDataType, predefined);
        ++counts.dataTypes;
    }

    // The I/O tree.
    const TagSpec modules[] = {
        {L"[0] Line3_Packer", L"VX-L83E", L"Controller"},
        {L"[1] ENET_1", L"VX-EN2T", L"EtherNet/IP to the drives"},
        {L"[2] DI_Slot2", L"VX-IB16", L"16 digital inputs, 24 V DC"},
        {L"[3] DO_Slot3", L"VX-OB16E", L"16 digital outputs, electronically fused"},
        {L"[4] AI_Slot4", L"VX-IF8", L"8 analog inputs"},
        {L"[5] AO_Slot5", L"VX-OF4", L"4 analog outputs"},
        {L"[6] Spare", L"VX-IB16", L"Spare input module, inhibited"},
    };
    for (const TagSpec& module : modules) {
        const bool inhibited = std::wstring(module.name) == L"[6] Spare";
        const int m =
            b.Add(std::wstring(module.name) + L"\t" + module.type + L"\t" + module.description,
                  VU_TREEIMAGE_MODULE, VU_TREEIMAGE_MODULE, kKindModule, backplane, inhibited);
        ++counts.modules;
        counts.inhibited += inhibited ? 1 : 0;
        if (std::wstring(module.name) == L"[1] ENET_1") {
            const int network = b.Folder(L"Ethernet", m);
            for (int d = 1; d <= 6; ++d) {
                b.Add(L"VFD_" + std::wstring(kStations[d - 1]) + L"\tPowerFlex 525\t192.168.1." +
                          TwoDigits(d * 10 + 1),
                      VU_TREEIMAGE_MODULE, VU_TREEIMAGE_MODULE, kKindModule, network);
                ++counts.modules;
            }
        }
    }
    return counts;
}

} // namespace gallery
