#include "app/ProjectFiles.h"

namespace quillford {

ProjectFiles::ProjectFiles(Project& project, mdlSystem& system, Settings& settings,
                           UserPrompts& prompts, const Wizard& wizard, const Ports& ports)
    : folders_(settings, ports.folders),
      dialog_(project.fields, folders_, prompts),
      names_(project.fields, folders_),
      recent_(settings, project),
      backups_(ports.folders, ports.clock),
      title_(wizard.screen.project),
      copies_(project.fields, ports.folders, ports.pictureSizes),
      saver_(project, folders_, dialog_, recent_, shadow_, backups_, title_, wizard.saveState,
             prompts, ports.clock),
      opener_(project, system, wizard.rules, wizard.navigator, wizard.screen,
              {saver_, names_, folders_, recent_, copies_, title_, wizard.saveState, prompts},
              ports.clock),
      filer_(project.state, saver_, opener_, recent_, shadow_, prompts),
      newProject_(project, system, wizard.rules, wizard.navigator, wizard.screen, filer_,
                  ports.spelling, ports.clock),
      autoSave_(wizard.tmrAutoSave, project, filer_, names_, wizard.saveState, ports.clock),
      commands_(project, wizard.navigator, wizard.screen, newProject_, filer_, dialog_, folders_,
                title_, wizard.saveState, prompts) {}

} // namespace quillford
