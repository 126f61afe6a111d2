#include <mdl_Model.h>

const omu_PrimEnumRow* omu_PrimEnumTable<mdl_Model::FormulationEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"NOT_SET", mdl_Model::NOT_SET},
                                             {"SCATTERED", mdl_Model::SCATTERED},
                                             {"TOTAL", mdl_Model::TOTAL},
                                             {nullptr, 0}};
  return rows;
}

const omu_PrimEnumRow* omu_PrimEnumTable<mdl_Model::RestartIncEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"STEP_END", mdl_Model::STEP_END}, {nullptr, 0}};
  return rows;
}
