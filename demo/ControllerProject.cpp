#include "ControllerProject.h"

#include "tree/TreeImages.h"

#include <string>
#include <vector>

namespace gallery {
namespace {

struct TagSpec {
    const char16_t* name;
    const char16_t* type;
    const char16_t* description;
};

class Builder {
public:
    explicit Builder(VU_CTreeListBox& list) : m_list(list) {}

    int Add(const std::u16string& text, int image, int selectedImage, unsigned long kind,
            int parent, bool inhibited = false) {
        unsigned long data = (kind << 24) | (++m_serial & 0x7FFFFF);
        if (inhibited)
            data |= kInhibited;
        int handle = -1;
        m_list.AddItem(CString(text.c_str()), image, selectedImage, data, parent, &handle, false);
        return handle;
    }
    int Folder(const std::u16string& text, int parent) {
        return Add(text, VU_TREEIMAGE_FOLDER_CLOSED, VU_TREEIMAGE_FOLDER_OPEN, kKindFolder, parent);
    }
    void Tag(const TagSpec& tag, int parent, const std::u16string& prefix = u"") {
        Add(prefix + tag.name + u"\t" + tag.type + u"\t" + tag.description, VU_TREEIMAGE_TAG,
            VU_TREEIMAGE_TAG, kKindTag, parent);
    }

private:
    VU_CTreeListBox& m_list;
    unsigned long m_serial = 0;
};

const TagSpec kControllerTags[] = {
    {u"Line_Run", u"BOOL", u"Line running (all stations)"},
    {u"Line_Stop", u"BOOL", u"Line stop request from HMI"},
    {u"Line_Reset", u"BOOL", u"Fault reset push button"},
    {u"Line_Speed_SP", u"REAL", u"Line speed set point [bottles/min]"},
    {u"Line_Speed_PV", u"REAL", u"Measured line speed [bottles/min]"},
    {u"EStop_OK", u"BOOL", u"Emergency stop circuit healthy"},
    {u"Air_Pressure_OK", u"BOOL", u"Compressed air above 5.5 bar"},
    {u"Shift_Counter", u"DINT", u"Bottles produced this shift"},
    {u"Batch_ID", u"STRING", u"Current batch identifier"},
    {u"Recipe_Active", u"UDT_Recipe", u"Recipe in production"},
    {u"HMI_Screen", u"INT", u"Screen requested by the operator panel"},
    {u"Alarm_Word", u"DINT", u"Packed alarm bits for the HMI"},
    {u"Heartbeat", u"BOOL", u"Toggles every second for the SCADA link"},
    {u"Clock_1s", u"BOOL", u"One-second pulse"},
    {u"Cycle_Time_ms", u"DINT", u"Last scan time of the continuous task"},
};

const char16_t* const kStations[] = {u"Infeed",  u"Filler",     u"Capper",
                                     u"Labeler", u"CasePacker", u"Palletizer"};

std::u16string TwoDigits(int n) {
    return std::u16string{char16_t(u'0' + n / 10 % 10), char16_t(u'0' + n % 10)};
}

const TagSpec kStationTags[] = {
    {u"Motor_Run", u"BOOL", u"Drive run command"},
    {u"Motor_Fault", u"BOOL", u"Drive fault from the VFD"},
    {u"Motor_Speed", u"REAL", u"Speed reference [%]"},
    {u"Motor", u"UDT_Motor", u"Main drive"},
    {u"Jam_Detected", u"BOOL", u"Photo eye blocked longer than 2 s"},
    {u"Jam_Timer", u"TIMER", u"Jam detection delay"},
    {u"Count", u"COUNTER", u"Products through this station"},
    {u"State", u"DINT", u"Sequence step (0 idle, 10 run, 90 fault)"},
    {u"Valve_Reject", u"UDT_Valve", u"Reject cylinder"},
    {u"Temp_PV", u"REAL", u"Temperature [degC]"},
    {u"Temp_Alarm_High", u"BOOL", u"Temperature above the high limit"},
    {u"Manual_Mode", u"BOOL", u"Station in manual mode from the HMI"},
    {u"Station_Ready_For_Format_Change", u"BOOL", u"All interlocks met for a format change"},
    {u"Faults", u"DINT[32]", u"Fault history ring buffer"},
    {u"Setup_Values", u"REAL[10]", u"Format change parameters"},
};

const char16_t* const kRoutines[] = {u"MainRoutine", u"Sequence", u"Motors",
                                     u"Faults",      u"Manual",   u"HMI_Interface"};

struct TypeSpec {
    const char16_t* name;
    std::vector<TagSpec> members;
};

} // namespace

ProjectCounts FillControllerProject(VU_CTreeListBox& list) {
    ProjectCounts counts;
    Builder b(list);

    // The top level first: AddHeader finds its node by row + 1, which holds
    // only while every node added so far has a row.
    list.AddHeader(CString(u"Controller Line3_Packer"));
    const int controller =
        b.Add(u"Line3_Packer\tVX-L83E\tVX 8 series, revision 33.011",
              VU_TREEIMAGE_CONTROLLER, VU_TREEIMAGE_CONTROLLER, kKindController, -1);
    list.AddSeparator();
    list.AddHeader(CString(u"Tasks"));
    struct TaskSpec {
        const char16_t* text;
        int stations;
        const char16_t* program;
        const char16_t* language;
        int handle;
    } tasks[] = {{u"MainTask\tContinuous\tWatchdog 500 ms", 6, nullptr, u"Ladder", -1},
                 {u"Periodic_10ms\tPeriodic\tPriority 5, every 10 ms", 0, u"SafetyMonitor",
                  u"Structured Text", -1},
                 {u"Event_Estop\tEvent\tTriggered by the safety input module", 0, u"EStop_Response",
                  u"Function Block", -1}};
    for (TaskSpec& task : tasks) {
        task.handle = b.Add(task.text, VU_TREEIMAGE_TASK, VU_TREEIMAGE_TASK, kKindTask, -1);
        ++counts.tasks;
    }
    const int unscheduled = b.Folder(u"Unscheduled Programs", -1);
    list.AddSeparator();
    list.AddHeader(CString(u"Data Types"));
    const int userDefined = b.Folder(u"User-Defined", -1);
    const int predefined = b.Folder(u"Predefined", -1);
    list.AddSeparator();
    list.AddHeader(CString(u"I/O Configuration"));
    const int backplane = b.Folder(u"VX Backplane, VX-A10", -1);

    // The controller's own folders and tags.
    const int controllerTags = b.Folder(u"Controller Tags", controller);
    for (const TagSpec& tag : kControllerTags) {
        b.Tag(tag, controllerTags);
        ++counts.controllerTags;
    }
    for (int i = 0; i < 16; ++i) {
        const std::u16string name = u"Local_2_I_Data_" + TwoDigits(i);
        b.Tag({name.c_str(), u"BOOL", u"Digital input, slot 2"}, controllerTags);
        ++counts.controllerTags;
    }
    b.Folder(u"Controller Fault Handler", controller);
    b.Folder(u"Power-Up Handler", controller);

    // Programs of the tasks, each with its tags and routines.
    for (const TaskSpec& task : tasks) {
        for (int s = 0; s < task.stations; ++s) {
            const std::u16string programName = kStations[s];
            const int program = b.Add(programName, VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
                                      kKindProgram, task.handle);
            ++counts.programs;
            const int tags = b.Folder(u"Program Tags", program);
            for (const TagSpec& tag : kStationTags) {
                b.Tag(tag, tags);
                ++counts.programTags;
            }
            for (const char16_t* routine : kRoutines) {
                const bool inhibited = s == 1 && std::u16string(routine) == u"Manual";
                b.Add(std::u16string(routine) + u"\t" + task.language + u"\t" + programName + u" " +
                          routine,
                      VU_TREEIMAGE_ROUTINE, VU_TREEIMAGE_ROUTINE, kKindRoutine, program, inhibited);
                ++counts.routines;
                counts.inhibited += inhibited ? 1 : 0;
            }
        }
        if (task.program != nullptr) {
            const std::u16string programName = task.program;
            const int program = b.Add(programName, VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
                                      kKindProgram, task.handle);
            ++counts.programs;
            const int tags = b.Folder(u"Program Tags", program);
            for (int i = 0; i < 6; ++i) {
                b.Tag(kStationTags[i], tags);
                ++counts.programTags;
            }
            for (const char16_t* routine : {u"MainRoutine", u"Checks"}) {
                b.Add(std::u16string(routine) + u"\t" + task.language + u"\t" + programName,
                      VU_TREEIMAGE_ROUTINE, VU_TREEIMAGE_ROUTINE, kKindRoutine, program);
                ++counts.routines;
            }
        }
    }
    b.Add(u"Commissioning\t\tNot scheduled in any task", VU_TREEIMAGE_PROGRAM, VU_TREEIMAGE_PROGRAM,
          kKindProgram, unscheduled, true);
    ++counts.programs;
    ++counts.inhibited;

    // Data types.
    const TypeSpec types[] = {
        {u"UDT_Motor",
         {{u"Run", u"BOOL", u"Run command"},
          {u"Running", u"BOOL", u"Run feedback"},
          {u"Fault", u"BOOL", u"Drive fault"},
          {u"Speed_SP", u"REAL", u"Speed set point [%]"},
          {u"Speed_PV", u"REAL", u"Actual speed [%]"},
          {u"Hours", u"DINT", u"Running hours"}}},
        {u"UDT_Valve",
         {{u"Open", u"BOOL", u"Open command"},
          {u"Opened", u"BOOL", u"Open limit switch"},
          {u"Closed", u"BOOL", u"Closed limit switch"},
          {u"Travel_Time", u"TIMER", u"Travel supervision"}}},
        {u"UDT_Recipe",
         {{u"Name", u"STRING", u"Recipe name"},
          {u"Fill_Volume_ml", u"REAL", u"Nominal fill volume"},
          {u"Cap_Torque_Ncm", u"REAL", u"Capping torque"},
          {u"Label_Length_mm", u"REAL", u"Label length"},
          {u"Bottles_Per_Case", u"INT", u"Case packing pattern"}}},
        {u"UDT_Alarm",
         {{u"Active", u"BOOL", u"Condition present"},
          {u"Acknowledged", u"BOOL", u"Operator acknowledged"},
          {u"Text_ID", u"DINT", u"Message number for the HMI"}}},
    };
    for (const TypeSpec& type : types) {
        const int t = b.Add(type.name, VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE,
                            kKindDataType, userDefined);
        ++counts.dataTypes;
        for (const TagSpec& member : type.members)
            b.Add(std::u16string(member.name) + u"\t" + member.type + u"\t" + member.description,
                  VU_TREEIMAGE_DOCUMENT, VU_TREEIMAGE_DOCUMENT, kKindMember, t);
    }
    for (const TagSpec& type :
         {TagSpec{u"BOOL", u"1 bit", u"Boolean"}, TagSpec{u"SINT", u"8 bit", u"Short integer"},
          TagSpec{u"INT", u"16 bit", u"Integer"}, TagSpec{u"DINT", u"32 bit", u"Double integer"},
          TagSpec{u"LINT", u"64 bit", u"Long integer"}, TagSpec{u"REAL", u"32 bit", u"IEEE float"},
          TagSpec{u"STRING", u"88 bytes", u"82 characters"},
          TagSpec{u"TIMER", u"12 bytes", u"PRE, ACC, EN, TT, DN"},
          TagSpec{u"COUNTER", u"12 bytes", u"PRE, ACC, CU, CD, DN"}}) {
        b.Add(std::u16string(type.name) + u"\t" + type.type + u"\t" + type.description,
              VU_TREEIMAGE_DATA_TYPE, VU_TREEIMAGE_DATA_TYPE, kKindDataType, predefined);
        ++counts.dataTypes;
    }

    // The I/O tree.
    const TagSpec modules[] = {
        {u"[0] Line3_Packer", u"VX-L83E", u"Controller"},
        {u"[1] ENET_1", u"VX-EN2T", u"EtherNet/IP to the drives"},
        {u"[2] DI_Slot2", u"VX-IB16", u"16 digital inputs, 24 V DC"},
        {u"[3] DO_Slot3", u"VX-OB16E", u"16 digital outputs, electronically fused"},
        {u"[4] AI_Slot4", u"VX-IF8", u"8 analog inputs"},
        {u"[5] AO_Slot5", u"VX-OF4", u"4 analog outputs"},
        {u"[6] Spare", u"VX-IB16", u"Spare input module, inhibited"},
    };
    for (const TagSpec& module : modules) {
        const bool inhibited = std::u16string(module.name) == u"[6] Spare";
        const int m =
            b.Add(std::u16string(module.name) + u"\t" + module.type + u"\t" + module.description,
                  VU_TREEIMAGE_MODULE, VU_TREEIMAGE_MODULE, kKindModule, backplane, inhibited);
        ++counts.modules;
        counts.inhibited += inhibited ? 1 : 0;
        if (std::u16string(module.name) == u"[1] ENET_1") {
            const int network = b.Folder(u"Ethernet", m);
            for (int d = 1; d <= 6; ++d) {
                b.Add(u"VFD_" + std::u16string(kStations[d - 1]) + u"\tPowerFlex 525\t192.168.1." +
                          TwoDigits(d * 10 + 1),
                      VU_TREEIMAGE_MODULE, VU_TREEIMAGE_MODULE, kKindModule, network);
                ++counts.modules;
            }
        }
    }
    return counts;
}

} // namespace gallery
